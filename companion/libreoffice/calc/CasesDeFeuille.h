// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <com/sun/star/sheet/XSpreadsheet.hpp>

#include <cstdint>
#include <vector>

namespace extension {

/// Something to read in a cell of a sheet: its text, or its comment.
struct CaseDeFeuille {
    std::int32_t ligne;
    std::int32_t colonne;
    bool estCommentaire;
    bool estUniforme; ///< one line of one format and script: `texte` and `style` are all there is
    std::uint16_t style;
    rtl::OUString texte;
};

/// What there is to read in a sheet, row by row, a cell's comment after its text. Not among it:
/// numbers and formulas, hidden rows and columns (filtered out or folded away), cells covered by a
/// merged one or hidden by their protection, what a pivot table has written. Takes time by the
/// cells in use. Main thread.
std::vector<CaseDeFeuille>
CasesDeFeuille(css::uno::Reference<css::sheet::XSpreadsheet> const& feuille);

} // namespace extension
