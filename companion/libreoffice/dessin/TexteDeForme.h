// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "TexteDessine.h"

namespace extension {

/// A text of the drawing engine: a shape's, a cell's of a table on a slide, a comment's of a slide
/// or spreadsheet. `porteur`: what is selected, or for a page brought into view, with it. Main
/// thread.
std::shared_ptr<TexteDessine> TexteDeForme(css::uno::Reference<css::uno::XInterface> const& texte,
                                           css::uno::Reference<css::uno::XInterface> const& porteur,
                                           css::uno::Reference<css::frame::XModel> const& modele,
                                           std::shared_ptr<Contenant const> contenant);

} // namespace extension
