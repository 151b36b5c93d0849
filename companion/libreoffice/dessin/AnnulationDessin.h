// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Gestes.h"

#include <memory>
#include <string>

namespace extension {

class TexteDessine;

/// Adds an undo step of that name for what was just done in a text whose changes the office does
/// not record when they come from a program. Main thread.
void AjouteAnnulation(std::shared_ptr<TexteDessine> const& texte, Gestes gestes,
                      std::u16string const& nom);

} // namespace extension
