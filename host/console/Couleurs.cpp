// SPDX-License-Identifier: MPL-2.0
#include "Couleurs.h"

#include <unistd.h>

#include <cstdlib>
#include <cstring>

namespace hote {

namespace {

bool EstColore(int descripteur) {
    char const* const refus = std::getenv("NO_COLOR");
    char const* const terminal = std::getenv("TERM");
    return isatty(descripteur) == 1 && (refus == nullptr || *refus == '\0') &&
           terminal != nullptr && std::strcmp(terminal, "dumb") != 0;
}

} // namespace

Couleurs::Couleurs(int descripteur)
    : actives_(EstColore(descripteur)) {}

std::string Couleurs::MarqueFaute(std::string const& texte) const {
    return actives_ ? Entoure("1;31", texte) : '[' + texte + ']';
}

std::string Couleurs::MarqueCorrection(std::string const& texte) const {
    return Entoure("32", texte);
}

std::string Couleurs::Attenue(std::string const& texte) const {
    return Entoure("2", texte);
}

std::string Couleurs::Entoure(char const* code, std::string const& texte) const {
    return actives_ ? "\033[" + std::string(code) + 'm' + texte + "\033[0m" : texte;
}

} // namespace hote
