// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Decoupeur.h"
#include "Lexique.h"

#include <vector>

namespace hote {

/// The parts of a word of `texte` that the dictionary does not know, in order: none for a good
/// word. Of a word with an elision, a possessive or hyphens, only the wrong part where the parts
/// can stand alone. Appended to `fautes`.
void JugeMot(Lexique& lexique, QString const& texte, Mot const& mot, std::vector<Mot>& fautes);

} // namespace hote
