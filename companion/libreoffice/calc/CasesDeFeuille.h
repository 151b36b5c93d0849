// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <com/sun/star/sheet/XSpreadsheet.hpp>

#include <cstdint>
#include <functional>
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

struct LectureDeFeuille {
    std::vector<CaseDeFeuille> cases;
    std::uint32_t masquees = 0; ///< cells with text that are not in view
    std::uint32_t generees = 0; ///< and that a pivot table has written
};

/// How many cells of a sheet hold text. Main thread, as the next one.
std::uint32_t CompteTextes(css::uno::Reference<css::sheet::XSpreadsheet> const& feuille);

/// What there is to read in a sheet, row by row, a cell's comment after its text. Not among it:
/// numbers and formulas, hidden rows and columns (filtered out or folded away), cells covered by a
/// merged one or hidden by their protection, what a pivot table has written. Takes time by the
/// cells in use, and calls `souffle` often on the way.
LectureDeFeuille CasesDeFeuille(css::uno::Reference<css::sheet::XSpreadsheet> const& feuille,
                                std::function<void()> const& souffle);

} // namespace extension
