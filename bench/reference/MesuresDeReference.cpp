// SPDX-License-Identifier: MPL-2.0
#include "AppelSdBus.h"
#include "CollectionZonesDeTexte.h"
#include "LectureSimd.h"
#include "commun/Mesures.h"
#include "commun/ProcessusMesure.h"
#include "pont/AgentDuBanc.h"

#include <stdexcept>

namespace banc {

namespace {

void Exige(bool juste) {
    if (!juste) {
        throw std::logic_error("a call was not answered as it should be");
    }
}

} // namespace

LigneDeMesure MesureAttenteSdBus(Ampleur ampleur) {
    auto const instance = QStringLiteral("attentesd");
    Processus repondeur(Processus::Soi(), {QStringLiteral("--repondeur"), instance});
    repondeur.LisLigne();
    AgentDuBanc agent(instance, 0);
    AppelSdBus reference(instance.toStdString());
    auto const medianes = Alterne(
        ampleur.Tours(10001),
        [&] { return Passe([&] { Exige(agent.PermetsRetourDeCharriot()); }); },
        [&] { return Passe([&] { Exige(reference.PermetsRetourDeCharriot()); }); });
    return {"a waited call of the agent / sd-bus' own",
            medianes.mesure,
            medianes.reference,
            "us",
            1.4,
            "medians of single calls"};
}

namespace {

Medianes SynchronisationDe(QString const& instance, int nombre, int tours) {
    AgentDuBanc agent(instance, nombre);
    AppelSdBus reference(instance.toStdString());
    auto const identifiant = instance.toStdString() + "~" + std::to_string(nombre);
    return Alterne(
        tours,
        [&] {
            return Passe([&] {
                CollectionZonesDeTexte zones;
                Exige(agent.SynchronisePositions(zones) && zones.DonneNombre() == nombre);
            });
        },
        [&] {
            return Passe([&] {
                reference.SynchronisePositions(identifiant, [&](std::string_view document) {
                    Exige(CompteZonesSimd(document) == nombre);
                });
            });
        });
}

} // namespace

LigneDeMesure MesureSynchronisation(Ampleur ampleur) {
    auto const instance = QStringLiteral("synchro");
    auto const nombre = ampleur.Taille(1000);
    Processus repondeur(Processus::Soi(), {QStringLiteral("--repondeur"), instance});
    repondeur.LisLigne();
    auto const medianes = SynchronisationDe(instance, nombre, ampleur.Tours(301));
    return {"SynchronisePositions / sd-bus and a SIMD parser, no text kept",
            medianes.mesure,
            medianes.reference,
            "us",
            2.0,
            std::to_string(nombre) + " zones"};
}

Courbe CourbeDeSynchronisation(Ampleur ampleur) {
    auto const instance = QStringLiteral("courbe");
    Processus repondeur(Processus::Soi(), {QStringLiteral("--repondeur"), instance});
    repondeur.LisLigne();
    Courbe courbe{"A document over the bus",
                  "SynchronisePositions",
                  "sd-bus and a SIMD parser, no text kept",
                  {}};
    for (int const taille : {100, 300, 1'000, 3'000, 10'000, 30'000}) {
        auto const nombre = ampleur.Taille(taille);
        auto const medianes =
            SynchronisationDe(instance, nombre, ampleur.Tours(3 + 100'000 / taille / 10));
        courbe.points.push_back({nombre, medianes.mesure, medianes.reference});
    }
    return courbe;
}

} // namespace banc
