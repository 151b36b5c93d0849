// SPDX-License-Identifier: MPL-2.0
#include "OperationsEnOrdre.h"

#include "ImageCommune.h"

namespace hote {

namespace {

using Agent = InterfaceAgentTexteur;
using Zones = CollectionZonesDeTexte;

void TraiteTexteLu(Agent& agent, Zones& /*zones*/) {
    TexteAvecAttributs texte{sdd::ChaineN(QStringLiteral("Un texte."))};
    agent.TraiteTexteLu(texte);
    TexteAvecAttributs vide;
    agent.TraiteTexteLu(vide);
}

void DonneImageApplication(Agent& agent, Zones& /*zones*/) {
    ImageCommune image;
    agent.DonneImageApplication(image);
}

void AjusteSelectionPourOutils(Agent& agent, Zones& /*zones*/) {
    int debut = 0;
    int fin = 0;
    agent.DonneContexte(&debut, &fin); // what the shift is counted from
    agent.AjusteSelectionPourOutils(0, 0);
}

void DonneContexte(Agent& agent, Zones& /*zones*/) {
    int debut = 0;
    int fin = 0;
    agent.DonneContexte(&debut, &fin);
}

void Modes(Agent& agent, void (Agent::*operation)(int)) {
    for (int mode : {2, 1, -1, 0}) {
        (agent.*operation)(mode);
    }
}

} // namespace

std::array<OperationEnOrdre, 29> const kOperationsEnOrdre = {{
    {"TraiteTexteLu", TraiteTexteLu, false},
    {"Crochet03", [](Agent& a, Zones&) { a.Crochet03(); }, false},
    {"DocEstMort", [](Agent& a, Zones&) { a.DocEstMort(); }, false},
    {"DonneCheminDocument", [](Agent& a, Zones&) { a.DonneCheminDocument(); }, false},
    {"DonneImageApplication", DonneImageApplication, false},
    {"DonneChaineAgent7", [](Agent& a, Zones&) { a.DonneChaineAgent7(); }, false},
    {"SynchronisePositions", [](Agent& a, Zones& z) { a.SynchronisePositions(z); }, true},
    {"DonneZones", [](Agent& a, Zones& z) { a.DonneZones(z); }, true},
    {"DonneNomApplication", [](Agent& a, Zones&) { a.DonneNomApplication(); }, false},
    {"DonneTitreDocument", [](Agent& a, Zones&) { a.DonneTitreDocument(); }, false},
    {"Requete13", [](Agent& a, Zones&) { a.Requete13(); }, false},
    {"Requete14", [](Agent& a, Zones&) { a.Requete14(); }, false},
    {"InitialisePour", [](Agent& a, Zones&) { Modes(a, &Agent::InitialisePour); }, false},
    {"Requete17", [](Agent& a, Zones&) { a.Requete17(); }, false},
    {"EstLie", [](Agent& a, Zones&) { a.EstLie(); }, false},
    {"Crochet19", [](Agent& a, Zones&) { a.Crochet19(); }, false},
    {"PermetsRetourDeCharriot", [](Agent& a, Zones&) { a.PermetsRetourDeCharriot(); }, false},
    {"Requete21", [](Agent& a, Zones&) { a.Requete21(); }, false},
    {"Crochet23", [](Agent& a, Zones&) { a.Crochet23(); }, false},
    {"Crochet24", [](Agent& a, Zones&) { a.Crochet24(); }, false},
    {"RompsLienCorrecteur", [](Agent& a, Zones&) { a.RompsLienCorrecteur(); }, false},
    {"RompsLienTexteur", [](Agent& a, Zones&) { a.RompsLienTexteur(); }, false},
    {"Suspends", [](Agent& a, Zones&) { a.Suspends(); }, false},
    {"Crochet28", [](Agent& a, Zones&) { a.Crochet28(); }, false},
    {"Crochet29", [](Agent& a, Zones&) { a.Crochet29(); }, false},
    {"Requete30", [](Agent& a, Zones&) { a.Requete30(); }, false},
    {"AjusteSelectionPourOutils", AjusteSelectionPourOutils, false},
    {"DonneContexte", DonneContexte, false},
    {"Requete33", [](Agent& a, Zones&) { a.Requete33(); }, false},
}};

} // namespace hote
