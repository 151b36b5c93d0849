// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <com/sun/star/frame/XController.hpp>

namespace bureau {

/// Is the person typing in a cell (or a shape's text) of this view of a spreadsheet? What is
/// typed there replaces the cell's text at its end, whatever was done to it meanwhile. Main thread.
bool EstEnTrainDeTaper(
    com::sun::star::uno::Reference<com::sun::star::frame::XController> const& vue);

} // namespace bureau
