// SPDX-License-Identifier: MPL-2.0
#include "AgentDuBanc.h"
#include "commun/Mesures.h"
#include "commun/ProcessusMesure.h"

#include <stdexcept>

namespace banc {

LigneDeMesure MesureVeille(Ampleur ampleur) {
    auto const instance = QStringLiteral("veille");
    Processus repondeur(Processus::Soi(), {QStringLiteral("--repondeur"), instance});
    repondeur.LisLigne();
    AgentDuBanc agent(instance, 0);
    double passe = 0;
    auto const medianes = Alterne(
        ampleur.Tours(21),
        [&] {
            double occupe = 0;
            passe = Passe([&] {
                occupe = Occupe([&] {
                    if (agent.DonneTitreDocument().EstVide()) {
                        throw std::logic_error("a call was not answered");
                    }
                });
            });
            return occupe;
        },
        [&] { return passe; });
    return {"processor time of a wait of 100 ms / the wait",
            medianes.mesure,
            medianes.reference,
            "us",
            0.05,
            "of the thread that waits"};
}

} // namespace banc
