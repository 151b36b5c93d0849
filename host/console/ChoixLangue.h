// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "langue/Lexique.h"

#include <QString>

#include <memory>
#include <string>
#include <vector>

namespace hote {

/// The dictionary to work with, and whether its language was found out from the text.
struct ChoixLangue {
    std::unique_ptr<Lexique> lexique;
    bool trouvee;
};

/// The dictionary of the language in which `textes` are written. Where only one of the two
/// dictionaries is installed, that one, with a warning. Throws ErreurHote (kSortieDictionnaire)
/// when both are missing.
ChoixLangue ChoisisLangue(std::vector<QString> const& textes);

/// The language's name, in the display language.
std::string DonneNomLangue(Langue langue);

/// The language's code: "fr" or "en".
QString DonneCodeLangue(Langue langue);

} // namespace hote
