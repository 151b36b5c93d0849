// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Lexique.h"

#include <optional>
#include <string>
#include <vector>

namespace hote {

/// The two files of a Hunspell dictionary; paths are bytes as the system has them.
struct FichiersDictionnaire {
    std::string affixes; ///< .aff
    std::string mots;    ///< .dic
};

/// Where dictionaries are: the folders of the environment's DICPATH (separated by ":"), then the
/// system's usual ones.
std::vector<std::string> DonneDossiersDictionnaires();

/// The dictionary of a language, in the first of the folders that has one; both files must be
/// readable. Nothing when there is none.
std::optional<FichiersDictionnaire> LocaliseDictionnaire(Langue langue,
                                                         std::vector<std::string> const& dossiers);

} // namespace hote
