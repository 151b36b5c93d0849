// SPDX-License-Identifier: MPL-2.0
#include "Reglages.h"

#include <cstdlib>

namespace extension {

namespace {

std::string Valeur(char const* nom) {
    char const* const valeur = std::getenv(nom);
    return valeur != nullptr ? valeur : "";
}

} // namespace

Reglages ReglagesDeLEnvironnement() {
    return {Valeur("VOCALYNE_HOTE"), Valeur("VOCALYNE_TERMINAL"), Valeur("PATH"), Valeur("HOME")};
}

} // namespace extension
