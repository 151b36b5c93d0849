// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "dessin/TexteDessine.h"

#include <com/sun/star/table/CellAddress.hpp>

#include <optional>

namespace extension {

/// A spreadsheet's cell with text; a zone for each of its paragraphs. The office keeps the object
/// it was made for on the same cell while rows and columns come and go. Main thread only.
class Cellule : public TexteDessine {
  public:
    Cellule(css::uno::Reference<css::uno::XInterface> const& cellule,
            css::uno::Reference<css::frame::XModel> const& modele)
        : TexteDessine(cellule, modele, nullptr) {}

    /// Where the cell stands now; nothing once it was deleted.
    std::optional<css::table::CellAddress> Adresse() const;

    bool SAnnuleSeul() const override { return true; }
    bool EstProtege() const override;
    bool EstEnFrappe() const override;
    std::optional<Gestes> Remplace(std::size_t rang, std::size_t debut, std::u16string const& avant,
                                   std::u16string const& apres) override;
    void Selectionne() override;

    /// The paragraph of a cell of one format and one line.
    static ParagrapheLu LisUniforme(rtl::OUString const& texte, std::uint16_t style);

  protected:
    css::uno::Reference<css::text::XText> DonneTexte() const override;
    std::vector<ParagrapheLu> LisTout() const override;
    css::uno::Reference<css::text::XTextContent>
    ChampAvec(css::uno::Reference<css::text::XTextField> const& champ,
              rtl::OUString const& texte) const override;

  private:
    bool EstUniforme() const;
    rtl::OUString DonneTexteBrut() const;
    /// Puts that in as all of the text of a cell without formats inside.
    void PoseUniforme(rtl::OUString const& lettres);
};

} // namespace extension
