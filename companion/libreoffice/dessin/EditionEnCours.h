// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <com/sun/star/frame/XController.hpp>
#include <com/sun/star/frame/XModel.hpp>

namespace extension {

enum class Frappe { DansUneCellule, DansUneForme };

/// Is the person typing in the selected cell, or in the text of the selected shape, of this view?
/// What is typed there replaces the text at its end, whatever was done to it meanwhile. Main
/// thread.
bool EstEnTrainDeTaper(css::uno::Reference<css::frame::XController> const& vue, Frappe frappe);

/// Lets go of the shapes that are selected in a text document's window: while one is, the window
/// takes every other selection for done and keeps the shape. Main thread.
void QuitteLesFormes(css::uno::Reference<css::frame::XModel> const& modele);

} // namespace extension
