// SPDX-License-Identifier: MPL-2.0
// Zones, agents and the library, released in each order that hosts may.
#include "Epreuves.h"
#include "commun/MessagesHote.h"

namespace hote {

namespace {

void LibereUnAgent(Chantier const& chantier, Greffon const& greffon) {
    auto& rapporteur = chantier.DonneRapporteur();
    auto agent = chantier.OuvreAgent(greffon); // never read
    agent.reset();
    agent = chantier.OuvreAgent(greffon);
    if (!agent) {
        return;
    }
    CollectionZonesDeTexte zones;
    chantier.Lis(*agent, zones); // zones first
    rapporteur.Appelle("~InterfaceZoneDeTexte");
    zones.Vide();
    agent.reset();
    agent = chantier.OuvreAgent(greffon);
    if (!agent) {
        return;
    }
    chantier.Lis(*agent, zones); // zones one by one, links cut before them
    chantier.Appelle("RompsLienCorrecteur", [&] { agent->RompsLienCorrecteur(); });
    chantier.Appelle("RompsLienTexteur", [&] { agent->RompsLienTexteur(); });
    rapporteur.Appelle("~InterfaceZoneDeTexte");
    while (!zones.EstVide()) {
        zones.Retire(zones.DonneNombre() / 2);
    }
    agent.reset();
}

void LibereDeuxAgents(Chantier const& chantier, Greffon const& greffon, bool lePremier) {
    auto un = chantier.OuvreAgent(greffon);
    auto autre = chantier.OuvreAgent(greffon);
    if (!un || !autre) {
        return; // a connector may have one agent for a document
    }
    CollectionZonesDeTexte zonesUn;
    CollectionZonesDeTexte zonesAutre;
    chantier.Lis(*un, zonesUn);
    chantier.Lis(*autre, zonesAutre);
    auto& restant = lePremier ? autre : un;
    auto& zones = lePremier ? zonesAutre : zonesUn;
    auto const avant = chantier.DonneTextes(zones);
    (lePremier ? zonesUn : zonesAutre).Vide();
    (lePremier ? un : autre).reset();
    bool mort = false;
    chantier.Appelle("DocEstMort", [&] { mort = restant->DocEstMort(); });
    chantier.Exige(!mort && chantier.Lis(*restant, zones) && chantier.DonneTextes(zones) == avant,
                   "liberation.agents", Tr("L’autre ne se lit plus pareil."));
    zones.Vide();
}

} // namespace

void EprouveLiberation(Chantier const& chantier) {
    auto& rapporteur = chantier.DonneRapporteur();
    auto greffon = chantier.Charge();
    if (!chantier.OuvreAgent(*greffon)) {
        return;
    }
    rapporteur.Essaie("liberation.ordres");
    LibereUnAgent(chantier, *greffon);
    rapporteur.Essaie("liberation.agents");
    LibereDeuxAgents(chantier, *greffon, true);
    LibereDeuxAgents(chantier, *greffon, false);
    rapporteur.Essaie("liberation.recharge");
    for (int i = 0; i < 2; ++i) {
        greffon.reset();
        greffon = chantier.Charge();
        chantier.Exige(chantier.OuvreAgent(*greffon) != nullptr, "liberation.recharge",
                       Tr("Rechargée, elle ne donne plus d’agent."));
    }
}

} // namespace hote
