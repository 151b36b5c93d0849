// SPDX-License-Identifier: MPL-2.0
// Operations in every order: each one first, and each one behind each other.
#include "Epreuves.h"
#include "OperationsEnOrdre.h"
#include "commun/MessagesHote.h"

#include <algorithm>

namespace hote {

namespace {

void Joue(Chantier const& chantier, InterfaceAgentTexteur& agent, CollectionZonesDeTexte& zones,
          OperationEnOrdre const& operation) {
    chantier.Appelle(
        operation.nom, [&] { operation.appelle(agent, zones); }, operation.peutLever);
    // Enough for every pair, and no more than a host would hold.
    if (zones.DonneNombre() > 10000) {
        zones.Vide();
    }
}

void JoueChacuneLaPremiere(Chantier const& chantier, Greffon const& greffon) {
    for (auto const& operation : kOperationsEnOrdre) {
        auto const agent = chantier.OuvreAgent(greffon);
        CollectionZonesDeTexte zones; // emptied before the agent ends
        if (agent) {
            Joue(chantier, *agent, zones, operation);
        }
    }
}

} // namespace

void EprouveOrdre(Chantier const& chantier) {
    auto& rapporteur = chantier.DonneRapporteur();
    auto const greffon = chantier.Charge();
    auto const agent = chantier.OuvreAgent(*greffon);
    if (!agent) {
        return;
    }
    CollectionZonesDeTexte zones;
    chantier.Lis(*agent, zones);
    auto const avant = chantier.DonneTextes(zones);
    rapporteur.Essaie("appels.exceptions");
    rapporteur.Essaie("appels.panne");
    rapporteur.Essaie("appels.attente");
    rapporteur.Essaie("ordre.libre");
    JoueChacuneLaPremiere(chantier, *greffon);
    for (auto const& une : kOperationsEnOrdre) {
        for (auto const& autre : kOperationsEnOrdre) {
            Joue(chantier, *agent, zones, une);
            Joue(chantier, *agent, zones, autre);
        }
        zones.Vide();
    }
    bool const relu = chantier.Lis(*agent, zones);
    chantier.Exige(relu, "ordre.libre", Tr("Après cela, le document ne se lit plus."));
    rapporteur.Essaie("ordre.sans-effet");
    if (relu) {
        chantier.Exige(chantier.DonneTextes(zones) == avant, "ordre.sans-effet",
                       Tr("Le document se lit autrement qu’avant."));
    }
}

} // namespace hote
