// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Gestes.h"
#include "document/CarnetDeZones.h"
#include "document/Contenant.h"
#include "document/RecueilDeZones.h"
#include "document/ZoneOuverte.h"
#include "lecture/LecteurPortions.h"
#include "modele/Intervalle.h"

#include <com/sun/star/frame/XModel.hpp>
#include <com/sun/star/text/XText.hpp>
#include <com/sun/star/text/XTextCursor.hpp>
#include <com/sun/star/text/XTextField.hpp>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace extension {

class ParagrapheDessine;

/// A text of the office's drawing engine: in a shape, a comment, a spreadsheet cell. Its paragraphs
/// have no objects that last: they are known again by their words. Main thread only.
class TexteDessine : public Inscrit, public std::enable_shared_from_this<TexteDessine> {
  public:
    TexteDessine(css::uno::Reference<css::uno::XInterface> const& objet,
                 css::uno::Reference<css::frame::XModel> const& modele,
                 std::shared_ptr<Contenant const> contenant);
    ~TexteDessine() override;

    /// Reads all paragraphs and settles which zone each is; new ones get keys from the book.
    std::vector<ParagrapheLu> Relis(CarnetDeZones& carnet);
    /// The same for paragraphs that were just read.
    void Accueille(std::vector<ParagrapheLu> const& lus, CarnetDeZones& carnet);
    std::vector<std::shared_ptr<ParagrapheDessine>> const& DonneZones() const noexcept {
        return zones_;
    }
    void Quitte(CarnetDeZones& carnet) override;

    /// Puts one text in place of another, letter for letter as `PlanDePortions::Prepare` says, and
    /// tells what it did (nothing to tell where the office itself can take it back). No value when
    /// what stands there is another text, or it cannot be done safely.
    virtual std::optional<Gestes> Remplace(std::size_t rang, std::size_t debut,
                                           std::u16string const& avant,
                                           std::u16string const& apres);
    /// Takes back what `Remplace` did, or does it once more, to the letter and to the format;
    /// false, and nothing done, when the paragraph is not as it was left.
    bool Rejoue(Gestes const& gestes, bool aLEnvers);
    /// Does the office make an undo step of its own for a change of this text?
    virtual bool SAnnuleSeul() const = 0;
    virtual bool EstProtege() const { return contenant_ && contenant_->EstProtege(); }
    virtual bool EstEnFrappe() const { return false; }
    /// Selects the object that holds it, which is all that the office offers, and shows it.
    virtual void Selectionne() = 0;
    /// The object that the office has as selected when this text is: a shape, a table, a cell.
    virtual css::uno::Reference<css::uno::XInterface> DonnePorteur() const { return objet_; }
    /// By paragraph, the part of a range of this text in it.
    std::vector<std::optional<compagnon::Intervalle>>
    Partage(css::uno::Reference<css::text::XTextRange> const& plage) const;

    css::uno::Reference<css::frame::XModel> const& DonneModele() const noexcept { return modele_; }
    css::uno::Reference<css::uno::XInterface> const& DonneObjet() const noexcept { return objet_; }

  protected:
    virtual css::uno::Reference<css::text::XText> DonneTexte() const = 0;
    virtual std::vector<ParagrapheLu> LisTout() const;
    /// The steps that a replacement takes, for `Remplace`; nothing when something else stands
    /// there, or when it cannot be done safely.
    static std::optional<std::vector<compagnon::EtapeEdition>>
    Prepare(std::vector<ParagrapheLu> const& lus, std::size_t rang, std::size_t debut,
            std::u16string const& avant, std::u16string const& apres);
    /// Does them in the paragraph that was just read.
    void Fais(ParagrapheLu const& lu, std::vector<Geste> const& gestes);
    /// A field like that one with other words, to put in its place.
    virtual css::uno::Reference<css::text::XTextContent>
    ChampAvec(css::uno::Reference<css::text::XTextField> const& champ,
              rtl::OUString const& texte) const;

  private:
    /// The fields of a paragraph whose words are read. None may be kept beyond the call.
    static std::vector<css::uno::Reference<css::text::XTextField>> ChampsDe(ParagrapheLu const& lu);

    css::uno::Reference<css::uno::XInterface> objet_;
    css::uno::Reference<css::frame::XModel> modele_;
    std::shared_ptr<Contenant const> contenant_;
    LecteurPortions lecteur_;
    std::vector<std::shared_ptr<ParagrapheDessine>> zones_;
    std::vector<std::u16string> textes_;
};

/// Hands out the zones of a text whose paragraphs were just read. `endroit`: where it stands.
void RecueilleZones(TexteDessine const& texte, std::vector<ParagrapheLu>&& lus,
                    std::shared_ptr<Endroit const> const& endroit, RecueilDeZones const& recueil);

/// Reads and hands out the zones of such a text; `fabrique` makes it when it is met for the first
/// time.
void ParcoursTexteDessine(css::uno::Reference<css::uno::XInterface> const& objet,
                          std::function<std::shared_ptr<TexteDessine>()> const& fabrique,
                          std::shared_ptr<Endroit const> const& endroit, CarnetDeZones& carnet,
                          RecueilDeZones const& recueil);

} // namespace extension
