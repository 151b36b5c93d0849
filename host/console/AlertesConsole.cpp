// SPDX-License-Identifier: MPL-2.0
#include "AlertesConsole.h"

#include "langue/Contexte.h"

#include <QStringList>

#include <cstdio>

namespace hote {

void AlertesConsole::Recois(DAlerteInfo const& info) {
    for (UniChaine const& texte :
         {info.DonneTexte(), info.DonneInformation(), info.DonneDetails()}) {
        if (texte.EstVide()) {
            continue;
        }
        for (QString const& ligne : texte.VersQString().split(QLatin1Char('\n'))) {
            std::fprintf(stderr, "%s\n", DonnePourTerminal(ligne).toStdString().c_str());
        }
    }
}

} // namespace hote
