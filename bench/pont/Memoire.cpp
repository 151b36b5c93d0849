// SPDX-License-Identifier: MPL-2.0
#include "Memoire.h"

#include "AgentDuBanc.h"
#include "DocumentDeZones.h"
#include "commun/Mesures.h"
#include "commun/ProcessusMesure.h"

#include <cstdio>
#include <fstream>

namespace banc {

namespace {

long PicEnKio() {
    std::ifstream statut("/proc/self/status");
    for (std::string ligne; std::getline(statut, ligne);) {
        if (ligne.rfind("VmHWM:", 0) == 0) {
            return std::stol(ligne.substr(6));
        }
    }
    throw std::runtime_error("/proc/self/status has no VmHWM");
}

} // namespace

int LisEtDisMemoire(QString const& instance, int zones) {
    {
        // Everything that the first reading loads and keeps belongs to the base.
        AgentDuBanc petit(instance, 1);
        CollectionZonesDeTexte une;
        petit.SynchronisePositions(une);
    }
    AgentDuBanc agent(instance, zones);
    auto const base = PicEnKio();
    CollectionZonesDeTexte toutes;
    if (!agent.SynchronisePositions(toutes) || toutes.DonneNombre() != zones) {
        throw std::runtime_error("the large reply was not read");
    }
    std::printf("%ld\n", PicEnKio() - base);
    return 0;
}

LigneDeMesure MesureMemoire(Ampleur ampleur) {
    auto const zones = ampleur.Taille(57400); // 50 MiB
    auto const instance = QStringLiteral("memoire");
    Processus repondeur(Processus::Soi(), {QStringLiteral("--repondeur"), instance});
    repondeur.LisLigne();
    Processus lecteur(Processus::Soi(),
                      {QStringLiteral("--lecteur"), instance, QString::number(zones)});
    auto const pic = lecteur.LisLigne().toDouble() / 1024;
    auto const taille = static_cast<double>(FaisDocument(zones).size()) / 1024 / 1024;
    return {"peak memory of reading a reply / its size",
            pic,
            taille,
            "MiB",
            3.6,
            std::to_string(zones) + " zones"};
}

} // namespace banc
