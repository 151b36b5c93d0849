// SPDX-License-Identifier: MPL-2.0
#include "Bureau.h"

#include "AgentDuBanc.h"
#include "CollectionZonesDeTexte.h"
#include "Mesure.h"

#include <cstdio>
#include <iostream>
#include <sstream>
#include <string>

namespace banc {

namespace {

/// Sent without waiting, as the plug-in does: the question that follows is answered after it.
void CorrigeEtAttends(InterfaceZoneDeTexte& zone) {
    static int fois = 0;
    UniChaine const lettre(++fois % 2 == 0 ? QStringLiteral("a") : QStringLiteral("e"));
    zone.CorrigeDansTexteur(0, 1, lettre, false);
    if (!zone.PeutCorriger(0, 1, lettre))
        throw std::runtime_error("a correction was refused");
}

} // namespace

int ConduisBureau(QString const& identifiant) {
    AgentDuBanc agent(identifiant);
    CollectionZonesDeTexte zones;
    std::string ligne;
    while (std::getline(std::cin, ligne)) {
        std::istringstream demande(ligne);
        std::string operation;
        int rang = 0;
        demande >> operation >> rang;
        if (operation == "lis") {
            zones.Vide();
            auto const duree = Passe([&] { agent.SynchronisePositions(zones); });
            std::printf("%.1f %d\n", duree, zones.DonneNombre());
        } else if (operation == "corrige" && rang >= 0 && rang < zones.DonneNombre()) {
            std::printf("%.1f\n", Passe([&] { CorrigeEtAttends(*zones.DonneZone(rang)); }));
        } else {
            throw std::runtime_error("not understood: " + ligne);
        }
        std::fflush(stdout);
    }
    return 0;
}

} // namespace banc
