// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "document/ZoneOuverte.h"

#include <cstddef>
#include <memory>

namespace extension {

class TexteDessine;

/// Adds an undo step for a correction just made in a text whose changes the office does not record
/// when they come from a program. Main thread.
void AjouteAnnulation(std::shared_ptr<TexteDessine> const& texte, std::size_t rang,
                      CorrectionPrete const& correction);

} // namespace extension
