// SPDX-License-Identifier: MPL-2.0
#include "BureauDuBanc.h"

#include "AgentDuBanc.h"
#include "CollectionZonesDeTexte.h"
#include "ZoneDeTexteOOoProxy.h"
#include "commun/Mesure.h"

#include <QDBusPendingReply>

#include <cstdio>
#include <iostream>
#include <sstream>
#include <string>

namespace banc {

namespace {

/// The plug-in never waits for a correction; the bench waits for its reply, and for no work that
/// the office does afterwards on its own account.
void CorrigeEtAttends(AgentDuBanc const& agent, ZoneDeTexteOOoProxy const& zone) {
    static int fois = 0;
    auto const lettre = ++fois % 2 == 0 ? QStringLiteral("a") : QStringLiteral("e");
    QDBusPendingReply<> reponse =
        agent.DonneProxy()->CorrigeDansTexteur(zone.DonneNom().VersQString(), 0, 1, lettre, false);
    reponse.waitForFinished();
    if (reponse.isError()) {
        throw std::runtime_error(reponse.error().message().toStdString());
    }
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
            auto const& zone = dynamic_cast<ZoneDeTexteOOoProxy const&>(*zones.DonneZone(rang));
            std::printf("%.1f\n", Passe([&] { CorrigeEtAttends(agent, zone); }));
        } else {
            throw std::runtime_error("not understood: " + ligne);
        }
        std::fflush(stdout);
    }
    return 0;
}

} // namespace banc
