// SPDX-License-Identifier: MPL-2.0
#include "Avertissement.h"

#include "langue/Contexte.h"

#include <cstdio>

namespace hote {

void Avertis(std::string const& message) {
    std::string const ligne = DonnePourTerminal(QString::fromStdString(message)).toStdString();
    std::fprintf(stderr, "vocalyne-hote : %s\n", ligne.c_str());
}

} // namespace hote
