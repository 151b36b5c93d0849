// SPDX-License-Identifier: MPL-2.0
#include "Operations.h"

#include "commun/MessagesHote.h"

namespace hote {

void ExecuteOperation(Banc& banc, QString const& nom, Arguments const& arguments,
                      EcritureJson& resultat) {
    if (auto const operation = TrouveOperationExport(nom)) {
        operation(banc, arguments, resultat);
        return;
    }
    auto const operationAgent = TrouveOperationAgent(nom);
    auto const operationZone = TrouveOperationZone(nom);
    if (operationAgent == nullptr && operationZone == nullptr) {
        throw ErreurRequete(Tr("Opération inconnue : {1}", nom));
    }
    InterfaceAgentTexteur* const agent = banc.tenu.DonneAgent();
    if (agent == nullptr) {
        throw ErreurRequete(Tr("{1} demande un agent : CreeAgentTexteur d’abord.", nom));
    }
    if (operationAgent != nullptr) {
        operationAgent(*agent, banc, arguments, resultat);
        return;
    }
    int const rang = arguments.DonneEntier("zone");
    InterfaceZoneDeTexte* const zone = banc.tenu.DonneZones().DonneZone(rang);
    if (zone == nullptr) {
        throw ErreurRequete(Tr("Il n’y a pas de zone {1}.", rang));
    }
    operationZone(*zone, arguments, resultat);
}

void EcrisTexteAttribue(TexteAvecAttributs const& texte, EcritureJson& json) {
    json.OuvreObjet();
    json.EcrisCle("texte").EcrisTexte(texte.DonneTexte().VersQString());
    json.EcrisCle("longueur").EcrisEntier(texte.Longueur());
    EcrisStyles(texte, json);
    json.FermeObjet();
}

void EcrisStyles(TexteAvecAttributs const& texte, EcritureJson& json) {
    json.EcrisCle("styles").OuvreTableau();
    for (sdd::PlageAttribut const& plage : texte.DonnePlages()) {
        json.OuvreObjet();
        json.EcrisCle("debut").EcrisEntier(plage.debut);
        json.EcrisCle("longueur").EcrisEntier(plage.Longueur());
        json.EcrisCle("style").EcrisEntier(plage.attribut);
        json.FermeObjet();
    }
    json.FermeTableau();
}

} // namespace hote
