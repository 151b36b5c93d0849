// SPDX-License-Identifier: MPL-2.0
#include "Progression.h"

#include <QtGlobal>

#include <unistd.h>

#include <cstdio>

namespace hote {

namespace {

constexpr std::chrono::milliseconds kPeriodeTerminal{200};
constexpr std::chrono::seconds kPeriodeFichier{5};

std::chrono::milliseconds DonnePeriode(bool terminal) {
    bool estNombre = false;
    int const reglee = qEnvironmentVariableIntValue("VOCALYNE_PROGRESSION_MS", &estNombre);
    if (estNombre && reglee >= 0) {
        return std::chrono::milliseconds(reglee);
    }
    return terminal ? kPeriodeTerminal : kPeriodeFichier;
}

} // namespace

Progression::Progression()
    : terminal_(isatty(STDERR_FILENO) == 1)
    , periode_(DonnePeriode(terminal_))
    , prochaine_(Horloge::now() + periode_) {}

void Progression::Efface() {
    if (affichee_) {
        std::fputs("\r\033[K", stderr);
    }
    affichee_ = false;
}

bool Progression::EstTemps() {
    auto const maintenant = Horloge::now();
    if (maintenant < prochaine_) {
        return false;
    }
    prochaine_ = maintenant + periode_;
    return true;
}

void Progression::Affiche(std::string const& texte) {
    if (terminal_) {
        std::fprintf(stderr, "\r\033[K%s", texte.c_str());
    } else {
        std::fprintf(stderr, "%s\n", texte.c_str());
    }
    std::fflush(stderr);
    affichee_ = terminal_;
}

} // namespace hote
