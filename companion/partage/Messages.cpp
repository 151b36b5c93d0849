// SPDX-License-Identifier: MPL-2.0
#include "Messages.h"

#include <atomic>
#include <cstdlib>
#include <cstring>

namespace compagnon {

namespace {

enum class Langue { Inconnue, Francais, Anglais };
std::atomic<Langue> langue{Langue::Inconnue};

bool EstFrancaisSelonLEnvironnement() {
    for (char const* const nom : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        char const* const valeur = std::getenv(nom);
        if (valeur && *valeur) {
            return std::strncmp(valeur, "fr", 2) == 0 &&
                   (valeur[2] == 0 || std::strchr("_.@", valeur[2]));
        }
    }
    return false;
}

} // namespace

void MetsFrancais(bool vrai) {
    langue = vrai ? Langue::Francais : Langue::Anglais;
}

bool ParleFrancais() {
    if (langue == Langue::Inconnue) {
        MetsFrancais(EstFrancaisSelonLEnvironnement());
    }
    return langue == Langue::Francais;
}

std::string Dis(Bilingue message, std::initializer_list<std::string_view> arguments) {
    std::string_view const modele = ParleFrancais() ? message.francais : message.anglais;
    std::string texte;
    for (std::size_t i = 0; i < modele.size(); ++i) {
        if (i + 2 < modele.size() && modele[i] == '{' && modele[i + 2] == '}') {
            auto const rang = static_cast<std::size_t>(modele[i + 1] - '1');
            if (rang < arguments.size()) {
                texte += arguments.begin()[rang];
                i += 2;
                continue;
            }
        }
        texte += modele[i];
    }
    return texte;
}

} // namespace compagnon
