// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "dessin/TexteDessine.h"

namespace extension {

/// A Writer comment: can be changed only while it has no format of its own, for the office takes
/// new words for a comment as plain text. Main thread.
std::shared_ptr<TexteDessine>
TexteDeCommentaire(css::uno::Reference<css::uno::XInterface> const& champ,
                   css::uno::Reference<css::frame::XModel> const& modele,
                   std::shared_ptr<Contenant const> contenant);

} // namespace extension
