// SPDX-License-Identifier: MPL-2.0
#include "LocaliseDictionnaire.h"

#include <unistd.h>

#include <cstdlib>
#include <sstream>

namespace hote {

namespace {

bool EstLisible(std::string const& fichier) {
    return access(fichier.c_str(), R_OK) == 0;
}

} // namespace

std::vector<std::string> DonneDossiersDictionnaires() {
    std::vector<std::string> dossiers;
    if (char const* const chemins = std::getenv("DICPATH")) {
        std::istringstream flux(chemins);
        for (std::string dossier; std::getline(flux, dossier, ':');) {
            if (!dossier.empty()) {
                dossiers.push_back(dossier);
            }
        }
    }
    for (char const* dossier : {"/usr/share/hunspell", "/usr/local/share/hunspell",
                                "/usr/share/myspell", "/usr/share/myspell/dicts"}) {
        dossiers.emplace_back(dossier);
    }
    return dossiers;
}

std::optional<FichiersDictionnaire> LocaliseDictionnaire(Langue langue,
                                                         std::vector<std::string> const& dossiers) {
    std::vector<char const*> const noms =
        langue == Langue::Francais
            ? std::vector<char const*>{"fr_FR", "fr", "fr_CA", "fr-classique", "fr-toutesvariantes"}
            : std::vector<char const*>{"en_US", "en_GB", "en", "en_CA"};
    for (std::string const& dossier : dossiers) {
        for (char const* nom : noms) {
            std::string const base = dossier + '/' + nom;
            if (EstLisible(base + ".aff") && EstLisible(base + ".dic")) {
                return FichiersDictionnaire{base + ".aff", base + ".dic"};
            }
        }
    }
    return std::nullopt;
}

} // namespace hote
