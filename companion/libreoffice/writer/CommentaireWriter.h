// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "dessin/TexteDessine.h"

namespace extension {

/// A Writer comment: can be changed only while it has no format of its own, for the office takes
/// new words for a comment as plain text.
std::shared_ptr<TexteDessine>
TexteDeCommentaire(com::sun::star::uno::Reference<com::sun::star::uno::XInterface> const& champ,
                   com::sun::star::uno::Reference<com::sun::star::frame::XModel> const& modele,
                   std::shared_ptr<Contenant const> contenant);

} // namespace extension
