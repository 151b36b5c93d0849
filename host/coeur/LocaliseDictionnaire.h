// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Lexique.h"

#include <optional>
#include <string>

namespace hote {

/// The two files of a Hunspell dictionary; paths are bytes as the system has them.
struct FichiersDictionnaire {
    std::string affixes; ///< .aff
    std::string mots;    ///< .dic
};

/// The dictionary of a language: in the folders of the environment's DICPATH (separated by ":")
/// first, then in the system's usual folders. Both files must be readable. Nothing when there is
/// none.
std::optional<FichiersDictionnaire> LocaliseDictionnaire(Langue langue);

} // namespace hote
