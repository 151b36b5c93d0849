// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <com/sun/star/frame/XController.hpp>

namespace extension {

enum class Frappe { DansUneCellule, DansUneForme };

/// Is the person typing in the selected cell, or in the text of the selected shape, of this view?
/// What is typed there replaces the text at its end, whatever was done to it meanwhile. Main
/// thread.
bool EstEnTrainDeTaper(css::uno::Reference<css::frame::XController> const& vue, Frappe frappe);

} // namespace extension
