// SPDX-License-Identifier: MPL-2.0
#include "AgentDuBanc.h"
#include "commun/Mesures.h"
#include "commun/ProcessusMesure.h"

namespace banc {

namespace {

/// Microseconds a call when that many go to a companion that has stopped answering, the next
/// agent's first contact with one that answers included.
double Coute(int appels, QString const& vif) {
    auto const instance = QStringLiteral("oublie%1").arg(appels);
    Processus muet(Processus::Soi(), {QStringLiteral("--repondeur"), instance});
    muet.LisLigne();
    AgentDuBanc agent(instance, 0);
    muet.Fige();
    auto const temps = Passe([&] {
        for (int i = 0; i < appels; ++i) {
            agent.AjusteSelectionPourOutils(0, 0);
        }
        AgentDuBanc const suivant(vif, 0);
    });
    return temps / appels;
}

} // namespace

LigneDeMesure MesureOublies(Ampleur ampleur) {
    auto const vif = QStringLiteral("vif");
    Processus repondeur(Processus::Soi(), {QStringLiteral("--repondeur"), vif});
    repondeur.LisLigne();
    auto const peu = ampleur.Taille(300);
    auto const beaucoup = ampleur.Taille(30000);
    auto const medianes = Alterne(
        ampleur.Tours(5), [&] { return Coute(beaucoup, vif); }, [&] { return Coute(peu, vif); });
    return {"a call of 30,000 that nobody answers / of 300",
            medianes.mesure,
            medianes.reference,
            "us",
            2.5,
            "with 1.5 s of patience, and the next agent's first contact"};
}

} // namespace banc
