// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "ParcoursCalc.h"
#include "document/SelectionVue.h"

namespace extension {

/// What is selected in a spreadsheet document (null for nothing with a text): cells, which count as
/// selected whole, or shapes. `cellules`: those met in the last walk; must outlive the result. Main
/// thread.
std::unique_ptr<SelectionVue>
LisSelectionCalc(css::uno::Reference<css::frame::XModel> const& modele, Cellules const& cellules);

} // namespace extension
