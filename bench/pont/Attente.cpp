// SPDX-License-Identifier: MPL-2.0
#include "AgentDuBanc.h"
#include "commun/Mesures.h"
#include "commun/ProcessusMesure.h"

#include <QDBusPendingReply>

namespace banc {

LigneDeMesure MesureAttente(Ampleur ampleur) {
    constexpr int kParTour = 1; // calls
    auto const instance = QStringLiteral("attente");
    Processus repondeur(Processus::Soi(), {QStringLiteral("--repondeur"), instance});
    repondeur.LisLigne();
    AgentDuBanc agent(instance, 0);
    auto& proxy = *agent.DonneProxy();
    auto const verifie = [](bool reponse) {
        if (!reponse) {
            throw std::logic_error("a call was not answered");
        }
    };
    auto const fois = [](auto const& appel) {
        return Passe([&] {
                   for (int i = 0; i < kParTour; ++i) {
                       appel();
                   }
               }) /
               kParTour;
    };
    auto const medianes = Alterne(
        ampleur.Tours(10001),
        [&] { return fois([&] { verifie(agent.PermetsRetourDeCharriot()); }); },
        [&] {
            return fois([&] {
                QDBusPendingReply<bool> reponse = proxy.PermetsRetourDeCharriot();
                reponse.waitForFinished();
                verifie(reponse.argumentAt(0).toBool());
            });
        });
    return {"a waited call of the agent / QtDBus' bare one",
            medianes.mesure,
            medianes.reference,
            "us",
            1.1,
            "medians of single calls"};
}

} // namespace banc
