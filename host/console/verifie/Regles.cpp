// SPDX-License-Identifier: MPL-2.0
#include "Regles.h"

#include "commun/MessagesHote.h"

namespace hote {

namespace {

std::vector<Regle> DonneReglesDesExports() {
    return {
        {"exports.charge", Tr("La bibliothèque se charge, et rien ne lui manque."),
         "DonneNomsTexteurs"},
        {"exports.cinq", Tr("Les cinq fonctions sont exportées."), "DonneNomsTexteurs"},
        {"exports.rien-d-autre", Tr("Rien d’autre n’est exporté."), "DonneNomsTexteurs"},
        {"exports.noms", Tr("Le nom de la fenêtre servie est toujours le même, et n’est pas vide."),
         "DonneNomsTexteurs"},
        {"exports.nul", Tr("Une adresse nulle est une fenêtre qui n’est pas servie."),
         "DonneIdentificateurDocumentCourant"},
        {"exports.refus", Tr("Une fenêtre refusée laisse l’identificateur comme il était."),
         "DonneIdentificateurDocumentCourant"},
        {"exports.lecture", Tr("Ce que l’hôte passe n’est pas modifié."), "CreeAgentTexteur"},
        {"exports.vide", Tr("Un identificateur vide ne donne pas d’agent."), "CreeAgentTexteur"},
    };
}

std::vector<Regle> DonneReglesDesAppels() {
    return {
        {"agent.cree", Tr("Le document donné a un agent."), "CreeAgentTexteur"},
        {"agent.identifiant", Tr("L’agent retient l’identificateur de l’hôte."),
         "DonneIdentificateur"},
        {"agent.meme-objet", Tr("DonneAgentTexteur donne le même objet, ou rien."),
         "DonneAgentTexteur"},
        {"agent.constantes",
         Tr("Les constantes du connecteur ne changent pas, et tous ses agents "
            "ont les mêmes."),
         "Capacite1"},
        {"agent.vivant", Tr("Un document ouvert n’est pas dit mort."), "DocEstMort"},
        {"appels.exceptions", Tr("Aucune exception ne sort, que celles qui sont permises."),
         "InterfaceTexteur"},
        {"appels.panne", Tr("Le connecteur ne plante pas, et ne termine pas le programme."),
         "InterfaceTexteur"},
        {"appels.attente", Tr("Chaque appel rend la main."), "InterfaceTexteur"},
        {"ordre.libre", Tr("Les opérations se suivent dans tout ordre."), "InitialiseTexteur"},
        {"ordre.sans-effet", Tr("Ce qui ne corrige pas ne change pas le texte."), "DonneContexte"},
    };
}

std::vector<Regle> DonneReglesDesZones() {
    return {
        {"zones.lues", Tr("Le document se lit."), "DonneZones"},
        {"zones.longueur", Tr("La longueur d’une zone est celle de son texte."), "DonneLongueur"},
        {"zones.selection", Tr("La sélection d’une zone est dans la zone."), "DonneDebutSelection"},
        {"zones.selection-unique", Tr("Une zone au plus tient la sélection."),
         "DonneDebutSelection"},
        {"zones.styles",
         Tr("Les styles se suivent dans l’ordre, sans se couvrir, dans les bornes du texte."),
         "DonneTexte"},
        {"zones.ajoutees", Tr("Ce que la collection tient déjà y reste."), "SynchronisePositions"},
        {"zones.une-fois",
         Tr("Une zone n’est qu’une fois dans la collection, et les anciennes "
            "zones prêtées en sortent."),
         "SynchronisePositions"},
        {"zones.stables", Tr("Sans changement, le document se relit pareil."),
         "SynchronisePositions"},
        {"zones.entieres", Tr("Le texte est lu jusqu’au bout, bloc après bloc."), "DonneTexte"},
    };
}

std::vector<Regle> DonneReglesDesCorrections() {
    return {
        {"corrections.attendu",
         Tr("PeutCorriger refuse une plage qui ne tient pas le texte attendu."), "PeutCorriger"},
        {"corrections.faite", Tr("Une correction change la plage demandée, et rien d’autre."),
         "CorrigeDansTexteur"},
        {"corrections.plus-courte", Tr("De même quand le texte devient plus court."),
         "CorrigeDansTexteur"},
        {"corrections.meme-zone",
         Tr("Deux corrections d’une zone se suivent sans que l’on relise entre elles."),
         "CorrigeDansTexteur"},
        {"corrections.decalage",
         Tr("Une correction décale les zones qui suivent, sans que l’on relise."),
         "CorrigeDansTexteur"},
        {"corrections.selection",
         Tr("Une correction laisse la sélection de la zone comme elle a été "
            "lue."),
         "CorrigeDansTexteur"},
        {"corrections.retour", Tr("Une correction se défait par une autre."), "CorrigeDansTexteur"},
        {"ajuste.bornes", Tr("Un intervalle ajusté reste dans la zone."), "AjusteIntervalle"},
        {"selection.relue", Tr("La sélection demandée est celle qui se relit, ou aucune."),
         "SelectionneIntervalle"},
        {"liberation.ordres", Tr("Zones et agents se libèrent dans tout ordre permis."),
         "~InterfaceAgentTexteur"},
        {"liberation.agents", Tr("Un agent qui finit en laisse un autre travailler."),
         "CreeAgentTexteur"},
        {"liberation.recharge", Tr("La bibliothèque se décharge, et se recharge."),
         "DonneNomsTexteurs"},
        {"memoire.croissance", Tr("Ouvrir, lire et fermer un document ne retient pas de mémoire."),
         "~InterfaceAgentTexteur"},
        {"memoire.valgrind", Tr("Valgrind ne voit ni fuite, ni accès fautif du connecteur."),
         "~InterfaceAgentTexteur"},
    };
}

} // namespace

std::vector<Regle> const& DonneRegles() {
    static std::vector<Regle> const regles = [] {
        auto toutes = DonneReglesDesExports();
        for (auto donne : {DonneReglesDesAppels, DonneReglesDesZones, DonneReglesDesCorrections}) {
            auto const suite = donne();
            toutes.insert(toutes.end(), suite.begin(), suite.end());
        }
        return toutes;
    }();
    return regles;
}

} // namespace hote
