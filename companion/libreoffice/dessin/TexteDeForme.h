// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "TexteDessine.h"

namespace extension {

/// A text of the drawing engine: a shape's, a cell's of a table on a slide, a comment's of a slide
/// or spreadsheet. `porteur`: what is selected, or for a page brought into view, with it.
std::shared_ptr<TexteDessine>
TexteDeForme(com::sun::star::uno::Reference<com::sun::star::uno::XInterface> const& texte,
             com::sun::star::uno::Reference<com::sun::star::uno::XInterface> const& porteur,
             com::sun::star::uno::Reference<com::sun::star::frame::XModel> const& modele,
             std::shared_ptr<Contenant const> contenant);

} // namespace extension
