// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "CasesDeFeuille.h"
#include "Cellule.h"
#include "document/CarnetDeZones.h"
#include "document/RecueilDeZones.h"

#include <cstdint>
#include <unordered_map>
#include <vector>

namespace extension {

/// The cells whose zones were given out, in reading order.
using Cellules = std::vector<std::shared_ptr<Cellule>>;

/// One walk over a spreadsheet document: sheet by sheet (hidden ones left out), row by row, each
/// cell with text followed by its comment; then the sheet's shapes. Main thread; lives for one
/// walk.
class ParcoursCalc {
  public:
    /// `connues`: the cells of the walk before, which keep their zones wherever they stand now.
    ParcoursCalc(css::uno::Reference<css::frame::XModel> const& modele, CarnetDeZones& carnet,
                 Cellules const& connues, RecueilDeZones const& recueil);

    /// The cells met.
    Cellules Parcours();

  private:
    using Feuille = css::uno::Reference<css::sheet::XSpreadsheet>;

    void ParcoursFeuille(Feuille const& feuille, std::int16_t numero);
    void LisCellule(Feuille const& feuille, std::int16_t numero, CaseDeFeuille const& endroit,
                    std::shared_ptr<Contenant const> const& contenant);
    void LisCommentaire(Feuille const& feuille, CaseDeFeuille const& endroit,
                        std::shared_ptr<Contenant const> const& contenant);

    css::uno::Reference<css::frame::XModel> modele_;
    CarnetDeZones& carnet_;
    RecueilDeZones const& recueil_;
    std::unordered_map<std::uint64_t, std::shared_ptr<Cellule>> connues_;
    Cellules vues_;
};

} // namespace extension
