// SPDX-License-Identifier: MPL-2.0
#include "EtatDesMoteurs.h"

#include "commun/MessagesHote.h"
#include "langue/LocaliseDictionnaire.h"
#include "moteurs/ensemble/Decouverte.h"
#include "moteurs/externes/MoteurExterne.h"

#include <QFileInfo>

namespace hote {

namespace {

std::string DonneMotEtat(char const* etat) {
    if (etat == kPret) {
        return Tr("prêt");
    }
    if (etat == kAbsent) {
        return Tr("absent");
    }
    return etat == kEteint ? Tr("éteint") : Tr("en panne");
}

LigneMoteur ExamineHunspell() {
    LigneMoteur ligne{QStringLiteral("hunspell"), kPret, {}, {}, {}};
    auto const dossiers = DonneDossiersDictionnaires();
    QStringList manquants;
    for (auto const& [langue, paquet] :
         {std::pair{"fr", "hunspell-fr"}, std::pair{"en", "hunspell-en-us"}}) {
        auto const variantes = LocaliseVariantes(langue, dossiers);
        for (auto const& fichiers : variantes) {
            ligne.langues.append(
                QFileInfo(QString::fromStdString(fichiers.mots)).completeBaseName());
        }
        if (variantes.empty()) {
            manquants.append(QLatin1String(paquet));
        }
    }
    if (!manquants.isEmpty()) {
        ligne.etat = kAbsent;
        ligne.message = Tr("Il manque des dictionnaires : sudo apt install {1}",
                           manquants.join(QLatin1Char(' ')));
    }
    return ligne;
}

LigneMoteur ExamineExterne(DescriptionMoteur const& description, ReglagesHote const& reglages,
                           bool demarre) {
    LigneMoteur ligne{description.nom, kEteint, {}, description.langues, {}};
    if (reglages.EstMoteurEteint(description.nom)) {
        ligne.message = Tr("vocalyne-hote moteurs allume {1}", description.nom);
        return ligne;
    }
    if (!description.reglage.isEmpty() && reglages.DonneAdresse(description.reglage).isEmpty()) {
        ligne.message = Tr("vocalyne-hote moteurs adresse {1} http://…", description.nom);
        return ligne;
    }
    if (!demarre) {
        ligne.etat = description.EstPresent() ? kPret : kAbsent;
        ligne.message = description.EstPresent() ? std::string() : DonneInstallation(description);
        return ligne;
    }
    try {
        ligne.version = MoteurExterne(description).Demarre(Arret()).version;
        ligne.etat = kPret;
    } catch (ErreurDeMoteur const& erreur) {
        ligne.etat = erreur.EstAbsent() ? kAbsent : kPanne;
        ligne.message = erreur.what();
    }
    return ligne;
}

} // namespace

std::vector<LigneMoteur> ExamineMoteurs(ReglagesHote const& reglages, bool demarre) {
    std::vector<LigneMoteur> lignes{ExamineHunspell(),
                                    {QStringLiteral("regles"), kPret, {}, {}, {}}};
    lignes.back().langues = QStringList{QStringLiteral("fr"), QStringLiteral("en")};
    for (LigneMoteur& ligne : lignes) {
        if (reglages.EstMoteurEteint(ligne.nom)) {
            ligne.etat = kEteint;
            ligne.message = Tr("vocalyne-hote moteurs allume {1}", ligne.nom);
        }
    }
    QStringList fautes; // told by `moteurs`
    for (DescriptionMoteur const& description : DecouvreMoteurs(reglages, fautes)) {
        lignes.push_back(ExamineExterne(description, reglages, demarre));
    }
    return lignes;
}

std::string DonneTexte(LigneMoteur const& ligne) {
    std::string texte = ligne.nom.toStdString() + ' ' + ligne.version.toStdString();
    texte += (ligne.version.isEmpty() ? "(" : " (") +
             ligne.langues.join(QStringLiteral(", ")).toStdString() +
             ") : " + DonneMotEtat(ligne.etat);
    return texte + (ligne.message.empty() ? "" : ". " + ligne.message) + '\n';
}

} // namespace hote
