// SPDX-License-Identifier: MPL-2.0
#include "Commandes.h"
#include "Sortie.h"
#include "bus/DocumentsDuBus.h"
#include "commun/EcritureJson.h"
#include "commun/MessagesHote.h"
#include "langue/Contexte.h"

#include <unistd.h>

namespace hote {

namespace {

std::string EcrisJson(ListeDocuments const& liste) {
    EcritureJson json;
    json.Tableau();
    for (DocumentAnnonce const& document : liste.documents) {
        json.Objet();
        json.Cle("id").Texte(document.id);
        json.Cle("titre").Texte(document.titre);
        json.Cle("chemin").Texte(document.chemin);
        json.FinObjet();
    }
    json.FinTableau();
    return json.DonneJson() + '\n';
}

std::string EcrisTexte(ListeDocuments const& liste) {
    std::string texte;
    for (DocumentAnnonce const& document : liste.documents) {
        texte += PourTerminal(document.id).toStdString();
        texte += "  " + PourTerminal(document.titre).toStdString();
        if (!document.chemin.isEmpty()) {
            texte += "  " + PourTerminal(document.chemin).toStdString();
        }
        texte += '\n';
    }
    return texte;
}

} // namespace

eCodeSortie ExecuteDocuments(OptionsHote const& options) {
    auto const liste = EnumereDocuments(kDelaiDocumentsMs);
    for (std::string const& avertissement : liste.avertissements) {
        Avertis(avertissement);
    }
    if (liste.documents.empty() && !options.json) {
        Avertis(Tr("Aucun document à portée."));
    }
    Sortie sortie(STDOUT_FILENO);
    sortie.Ecris(options.json ? EcrisJson(liste) : EcrisTexte(liste));
    sortie.Verifie();
    return kSortieReussie;
}

} // namespace hote
