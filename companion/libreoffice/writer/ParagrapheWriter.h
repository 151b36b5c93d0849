// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "SignetsDuParagraphe.h"
#include "Suppressions.h"
#include "commun/Objets.h"
#include "document/Contenant.h"
#include "document/ZoneOuverte.h"
#include "lecture/LecteurPortions.h"

#include <com/sun/star/frame/XModel.hpp>
#include <com/sun/star/text/XTextContent.hpp>

#include <memory>
#include <string>
#include <vector>

namespace extension {

/// What a Writer document's paragraphs share.
struct FondWriter {
    css::uno::Reference<css::frame::XModel> modele;
    LecteurPortions lecteur;
    Suppressions suppressions;
};

/// A paragraph of a Writer text: body, cell, note, header, frame. Main thread only.
class ParagrapheWriter : public ZoneOuverte {
  public:
    ParagrapheWriter(std::string cle,
                     css::uno::Reference<css::text::XTextContent> const& paragraphe,
                     std::shared_ptr<Contenant const> contenant,
                     std::shared_ptr<FondWriter const> fond);

    compagnon::PlanDePortions Lis() override;
    bool EstProtegee() override;
    void Applique(CorrectionPrete const& correction) override;
    void Selectionne(compagnon::PlanDePortions const& plan, std::size_t debut,
                     std::size_t fin) override;

    /// Is it the zone of that object of the office?
    bool EstCelleDe(css::uno::Reference<css::uno::XInterface> const& objet) const;
    /// Does it stand in the same text (body, cell, note) as that object?
    bool EstVoisineDe(css::uno::Reference<css::uno::XInterface> const& objet) const;
    /// Does it stand in one of these texts, or in what is nested in one?
    bool EstDans(Objets const& textes) const;

    /// The place, in the paragraph as it stands, of a range of the document; what lies outside
    /// counts as the nearest end.
    compagnon::PlaceDansPortion
    PlaceDe(css::uno::Reference<css::text::XTextRange> const& position) const;

  private:
    ParagrapheLu LisPortions() const;
    SignetsDuParagraphe DonneSignets() const;
    /// Does a correction's steps.
    void Fais(CorrectionPrete const& correction) const;
    /// Puts letters in where the cursor stands, in `portion`.
    void Insere(css::uno::Reference<css::text::XTextCursor> const& curseur,
                std::u16string const& lettres,
                css::uno::Reference<css::text::XTextRange> const& portion) const;
    /// The document's ranges of the portions, for the time of one call. None may live on: an object
    /// of a portion inside a content control or a metadata field, kept, makes the document's next
    /// save fail and its undo throw.
    std::vector<css::uno::Reference<css::text::XTextRange>> DonneEtendues() const;

    css::uno::Reference<css::text::XTextContent> paragraphe_;
    std::shared_ptr<Contenant const> contenant_;
    std::shared_ptr<FondWriter const> fond_;
};

} // namespace extension
