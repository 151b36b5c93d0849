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
    json.Objet();
    json.Cle("texte").Texte(texte.DonneTexte().VersQString());
    json.Cle("longueur").Entier(texte.Longueur());
    EcrisStyles(texte, json);
    json.FinObjet();
}

void EcrisStyles(TexteAvecAttributs const& texte, EcritureJson& json) {
    json.Cle("styles").Tableau();
    for (sdd::PlageAttribut const& plage : texte.DonnePlages()) {
        json.Objet();
        json.Cle("debut").Entier(plage.debut);
        json.Cle("longueur").Entier(plage.Longueur());
        json.Cle("style").Entier(plage.attribut);
        json.FinObjet();
    }
    json.FinTableau();
}

} // namespace hote
