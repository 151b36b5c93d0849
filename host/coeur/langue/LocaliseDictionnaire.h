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

    friend bool operator==(FichiersDictionnaire const& a, FichiersDictionnaire const& b) {
        return a.affixes == b.affixes && a.mots == b.mots;
    }
};

/// Where dictionaries are: the folders of the environment's DICPATH (separated by ":"), then the
/// system's usual ones.
std::vector<std::string> DonneDossiersDictionnaires();

/// The dictionary of a language, in the first of the folders that has one; both files must be
/// readable. Nothing when there is none.
std::optional<FichiersDictionnaire> LocaliseDictionnaire(Langue langue,
                                                         std::vector<std::string> const& dossiers);

/// The dictionary of a BCP 47 tag: of its language and country ("en-GB": en_GB), else of the
/// language alone, else of the first country in the alphabet; in the first of the folders that has
/// one. Nothing when there is none.
std::optional<FichiersDictionnaire> LocaliseDictionnaire(std::string const& etiquette,
                                                         std::vector<std::string> const& dossiers);

/// All dictionaries of a language ("en"), a country each, in the first of the folders that has one;
/// of those with the same files under two names, one.
std::vector<FichiersDictionnaire> LocaliseVariantes(std::string const& langue,
                                                    std::vector<std::string> const& dossiers);

} // namespace hote
