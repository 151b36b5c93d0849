// SPDX-License-Identifier: MPL-2.0
#include "Ecran.h"

#include <cstdlib>
#include <fstream>
#include <string>
#include <string_view>

namespace extension {

namespace {

bool EstVide(char const* variable) {
    char const* const valeur = std::getenv(variable);
    return valeur == nullptr || *valeur == '\0';
}

} // namespace

bool AUnEcran() {
    char const* const dessin = std::getenv("SAL_USE_VCLPLUGIN");
    if ((EstVide("DISPLAY") && EstVide("WAYLAND_DISPLAY")) ||
        (dessin != nullptr && std::string_view(dessin) == "svp")) {
        return false;
    }
    std::ifstream commande("/proc/self/cmdline", std::ios::binary);
    for (std::string mot; std::getline(commande, mot, '\0');) {
        if (mot == "--headless" || mot == "-headless") {
            return false;
        }
    }
    return true;
}

} // namespace extension
