// SPDX-License-Identifier: MPL-2.0
#include "LocaliseDictionnaire.h"

#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <set>
#include <sstream>

namespace hote {

namespace {

namespace fs = std::filesystem;

bool EstLisible(std::string const& fichier) {
    return access(fichier.c_str(), R_OK) == 0;
}

/// The dictionary `base` without its suffix, if both its files are there.
std::optional<FichiersDictionnaire> DonneFichiers(std::string const& base) {
    if (EstLisible(base + ".aff") && EstLisible(base + ".dic")) {
        return FichiersDictionnaire{base + ".aff", base + ".dic"};
    }
    return std::nullopt;
}

/// The names that dictionaries of a language may have in a folder: "en", "en_GB"… in order.
std::vector<std::string> DonneNoms(std::string const& langue, std::string const& dossier) {
    std::vector<std::string> noms;
    std::error_code erreur;
    for (auto const& entree : fs::directory_iterator(dossier, erreur)) {
        std::string const nom = entree.path().stem().string();
        bool const sienne = nom == langue || nom.rfind(langue + '_', 0) == 0;
        if (sienne && entree.path().extension() == ".dic") {
            noms.push_back(nom);
        }
    }
    std::sort(noms.begin(), noms.end());
    return noms;
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

std::optional<FichiersDictionnaire> LocaliseDictionnaire(std::string const& etiquette,
                                                         std::vector<std::string> const& dossiers) {
    std::string const langue = etiquette.substr(0, etiquette.find('-'));
    std::string nom = etiquette;
    std::replace(nom.begin(), nom.end(), '-', '_');
    for (std::string const& dossier : dossiers) {
        if (auto fichiers = DonneFichiers((fs::path(dossier) / nom).string())) {
            return fichiers;
        }
    }
    auto const variantes = LocaliseVariantes(langue, dossiers);
    return variantes.empty() ? std::nullopt : std::make_optional(variantes.front());
}

std::vector<FichiersDictionnaire> LocaliseVariantes(std::string const& langue,
                                                    std::vector<std::string> const& dossiers) {
    std::vector<FichiersDictionnaire> variantes;
    std::set<std::string> vues; // French ones are often one file under many names
    for (std::string const& dossier : dossiers) {
        for (std::string const& nom : DonneNoms(langue, dossier)) {
            auto const fichiers = DonneFichiers((fs::path(dossier) / nom).string());
            std::error_code erreur;
            if (fichiers && vues.insert(fs::canonical(fichiers->mots, erreur).string()).second) {
                variantes.push_back(*fichiers);
            }
        }
        if (!variantes.empty()) {
            break;
        }
    }
    return variantes;
}

} // namespace hote
