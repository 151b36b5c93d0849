// SPDX-License-Identifier: MPL-2.0
#include "Constat.h"

#include "partage/Messages.h"

using compagnon::Dis;

namespace extension {

namespace {

std::string RemedeDeLHote(HoteTrouve const& hote) {
    if (!hote.voulu.empty()) {
        return Dis({"VOCALYNE_HOTE nomme «\u00a0", "VOCALYNE_HOTE names “"}) + hote.voulu +
               Dis({"\u00a0», qui n’est pas un programme que l’on puisse lancer. Corrigez cette "
                    "variable, ou ôtez-la, puis relancez la suite.",
                    "”, which is not a program that can be run. Correct that variable, or remove "
                    "it, then restart the office."});
    }
    std::string dossiers;
    for (std::string const& dossier : hote.dossiers) {
        dossiers += (dossiers.empty() ? "" : ", ") + dossier;
    }
    return Dis({"Le programme vocalyne-hote est introuvable. Installez l’hôte de Vocalyne, ou "
                "donnez son chemin par la variable VOCALYNE_HOTE, puis relancez la suite. Cherché "
                "dans\u00a0: ",
                "The program vocalyne-hote was not found. Install the Vocalyne host, or give its "
                "path in the variable VOCALYNE_HOTE, then restart the office. Searched: "}) +
           dossiers + '.';
}

std::string RemedeDuTerminal(TerminalTrouve const& terminal) {
    if (!terminal.voulu.empty()) {
        return Dis({"VOCALYNE_TERMINAL dit «\u00a0", "VOCALYNE_TERMINAL says “"}) + terminal.voulu +
               Dis({"\u00a0», qui ne peut pas être lancé. Corrigez cette variable, ou ôtez-la, "
                    "puis "
                    "relancez la suite.",
                    "”, which cannot be run. Correct that variable, or remove it, then restart the "
                    "office."});
    }
    return Dis({"Il n’y a pas de terminal où montrer le travail de l’hôte. Installez-en un, par "
                "exemple xterm, ou nommez-le par la variable VOCALYNE_TERMINAL.",
                "There is no terminal to show the host’s work in. Install one, such as xterm, or "
                "name it in the variable VOCALYNE_TERMINAL."});
}

std::string RemedeDeLHoteLance(HoteTrouve const& hote, Dite const& dite) {
    if (dite.finie && dite.code >= 0) {
        return Dis({"L’hôte ne peut pas travailler\u00a0; ce qu’il dit est ci-dessus. « "
                    "vocalyne-hote diagnostic », dans un terminal, le dit en entier.",
                    "The host cannot work; what it says stands above. “vocalyne-hote "
                    "diagnostic”, in a terminal, says it in full."});
    }
    return Dis({"L’hôte ne se lance pas, ou ne répond pas\u00a0: ",
                "The host does not start, or does not answer: "}) +
           hote.chemin + (dite.finie || dite.texte.empty() ? "" : " (" + dite.texte + ')') +
           Dis({". Réinstallez-le.", ". Install it again."});
}

std::string BusEnUnMot(EtatDuBus::Genre genre) {
    switch (genre) {
    case EtatDuBus::Genre::Sert:
        return Dis({"relié", "connected"});
    case EtatDuBus::Genre::NomPris:
    case EtatDuBus::Genre::NonPublie:
        return Dis({"relié, service non publié", "connected, service not published"});
    case EtatDuBus::Genre::Demarre:
        return Dis({"en cours de liaison", "connecting"});
    case EtatDuBus::Genre::SansBus:
    case EtatDuBus::Genre::BusMuet:
    case EtatDuBus::Genre::BusParti:
        break;
    }
    return Dis({"absent", "missing"});
}

std::string OuAbsent(std::string const& valeur) {
    return valeur.empty() ? Dis({"introuvable", "not found"}) : valeur;
}

} // namespace

std::vector<std::string> Manques(Constat const& constat) {
    std::vector<std::string> manques;
    std::string const bus = RemedeDuBus(constat.bus, constat.service);
    if (!bus.empty()) {
        manques.push_back(bus);
    }
    if (constat.idDocument.empty()) {
        manques.push_back(
            Dis({"Vocalyne ne sait pas lire un document de cette sorte, ou ouvert de "
                 "cette façon.",
                 "Vocalyne cannot read a document of this kind, or opened this way."}));
    }
    if (constat.hote.chemin.empty()) {
        manques.push_back(RemedeDeLHote(constat.hote));
    }
    if (constat.hoteDit && constat.hoteDit->code != 0) {
        manques.push_back(RemedeDeLHoteLance(constat.hote, *constat.hoteDit));
    }
    if (!constat.ecran && constat.terminal.commande.empty()) {
        manques.push_back(RemedeDuTerminal(constat.terminal));
    }
    return manques;
}

std::string Rapport(Constat const& constat) {
    std::string const terminal =
        constat.terminal.commande.empty() ? std::string() : constat.terminal.commande.front();
    std::string const document =
        constat.idDocument.empty() ? Dis({"non servi", "not served"}) : constat.idDocument;
    std::string rapport = Dis({"Vocalyne pour LibreOffice, version " VOCALYNE_VERSION,
                               "Vocalyne for LibreOffice, version " VOCALYNE_VERSION});
    rapport += Dis({"\n\nDocuments servis\u00a0: ", "\n\nDocuments served: "}) +
               std::to_string(constat.documents);
    rapport += Dis({"\nCe document\u00a0: ", "\nThis document: "}) + document;
    rapport += Dis({"\nService\u00a0: ", "\nService: "}) + OuAbsent(constat.service);
    rapport += Dis({"\nBus de session\u00a0: ", "\nSession bus: "}) + BusEnUnMot(constat.bus.genre);
    rapport += Dis({"\nHôte\u00a0: ", "\nHost: "}) + OuAbsent(constat.hote.chemin);
    if (!constat.ecran) {
        rapport += Dis({"\nTerminal\u00a0: ", "\nTerminal: "}) + OuAbsent(terminal);
    }
    if (constat.hoteDit && constat.hoteDit->finie) {
        rapport += "\n\n" + constat.hoteDit->texte;
    }
    std::vector<std::string> const manques = Manques(constat);
    rapport += manques.empty() ? Dis({"\n\nTout va bien.", "\n\nAll is well."})
                               : Dis({"\n\nCe qui ne va pas\u00a0:", "\n\nWhat is wrong:"});
    for (std::string const& manque : manques) {
        rapport += "\n\n• " + manque;
    }
    return rapport;
}

} // namespace extension
