// SPDX-License-Identifier: MPL-2.0
#include "Avertissement.h"
#include "Commandes.h"
#include "Sortie.h"
#include "bus/EnumereDocuments.h"
#include "commun/EcritureJson.h"
#include "commun/MessagesHote.h"
#include "langue/Contexte.h"

#include <unistd.h>

namespace hote {

namespace {

std::string EcrisJson(ListeDocuments const& liste) {
    EcritureJson json;
    json.OuvreTableau();
    for (DocumentAnnonce const& document : liste.documents) {
        json.OuvreObjet();
        json.EcrisCle("id").EcrisTexte(document.id);
        json.EcrisCle("titre").EcrisTexte(document.titre);
        json.EcrisCle("chemin").EcrisTexte(document.chemin);
        if (!document.genre.isEmpty()) {
            json.EcrisCle("genre").EcrisTexte(document.genre);
        }
        if (!document.langue.isEmpty()) {
            json.EcrisCle("langue").EcrisTexte(document.langue);
        }
        json.FermeObjet();
    }
    json.FermeTableau();
    return json.DonneJson() + '\n';
}

/// Its kind and language, "  [Writer, fr-FR]"; nothing where neither is known.
std::string DonneNature(DocumentAnnonce const& document) {
    QStringList nature;
    if (document.genre == QLatin1String("texte")) {
        nature << QString::fromStdString(Tr("texte"));
    } else if (!document.genre.isEmpty()) {
        nature << document.genre.at(0).toUpper() + document.genre.mid(1); // the program's name
    }
    if (!document.langue.isEmpty()) {
        nature << document.langue;
    }
    return nature.isEmpty() ? std::string()
                            : "  [" + nature.join(QStringLiteral(", ")).toStdString() + ']';
}

std::string EcrisTexte(ListeDocuments const& liste) {
    std::string texte;
    for (DocumentAnnonce const& document : liste.documents) {
        texte += DonnePourTerminal(document.id).toStdString();
        texte += "  " + DonnePourTerminal(document.titre).toStdString();
        if (!document.chemin.isEmpty()) {
            texte += "  " + DonnePourTerminal(document.chemin).toStdString();
        }
        texte += DonneNature(document);
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
