// SPDX-License-Identifier: MPL-2.0
#include "Avertissement.h"
#include "Commandes.h"
#include "Sortie.h"
#include "commun/EcritureJson.h"
#include "commun/ErreurHote.h"
#include "commun/MessagesHote.h"
#include "langue/LocaliseDictionnaire.h"
#include "moteurs/ensemble/Decouverte.h"
#include "moteurs/externes/MoteurExterne.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

#include <unistd.h>

#include <algorithm>

namespace hote {

namespace {

/// What a person is told of an engine.
struct LigneMoteur {
    QString nom;
    char const* etat; ///< "pret", "absent", "eteint", "panne"
    QString version;
    QStringList langues;
    std::string message; ///< what to do; empty when all is well
};

constexpr char const* kPret = "pret";
constexpr char const* kAbsent = "absent";
constexpr char const* kEteint = "eteint";
constexpr char const* kPanne = "panne";

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

LigneMoteur ExamineExterne(DescriptionMoteur const& description, ReglagesHote const& reglages) {
    LigneMoteur ligne{description.nom, kEteint, {}, description.langues, {}};
    if (reglages.EstMoteurEteint(description.nom)) {
        ligne.message = Tr("vocalyne-hote moteurs allume {1}", description.nom);
        return ligne;
    }
    if (!description.reglage.isEmpty() && reglages.DonneAdresse(description.reglage).isEmpty()) {
        ligne.message = Tr("vocalyne-hote moteurs adresse {1} http://…", description.nom);
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

std::string DonneJson(std::vector<LigneMoteur> const& lignes) {
    EcritureJson json;
    json.OuvreTableau();
    for (LigneMoteur const& ligne : lignes) {
        json.OuvreObjet().EcrisCle("nom").EcrisTexte(ligne.nom);
        json.EcrisCle("etat").EcrisTexte(QLatin1String(ligne.etat));
        json.EcrisCle("version").EcrisTexte(ligne.version);
        json.EcrisCle("langues").EcrisTexte(ligne.langues.join(QLatin1Char(' ')));
        json.EcrisCle("message").EcrisTexte(QString::fromStdString(ligne.message)).FermeObjet();
    }
    json.FermeTableau();
    return json.DonneJson() + '\n';
}

std::string DonneTexte(LigneMoteur const& ligne) {
    std::string texte = ligne.nom.toStdString() + ' ' + ligne.version.toStdString();
    texte += (ligne.version.isEmpty() ? "(" : " (") +
             ligne.langues.join(QStringLiteral(", ")).toStdString() +
             ") : " + DonneMotEtat(ligne.etat);
    return texte + (ligne.message.empty() ? "" : ". " + ligne.message) + '\n';
}

void Liste(std::vector<DescriptionMoteur> const& descriptions, ReglagesHote const& reglages,
           bool json) {
    std::vector<LigneMoteur> lignes{ExamineHunspell(),
                                    {QStringLiteral("regles"), kPret, {}, {}, {}}};
    lignes.back().langues = QStringList{QStringLiteral("fr"), QStringLiteral("en")};
    for (LigneMoteur& ligne : lignes) {
        if (reglages.EstMoteurEteint(ligne.nom)) {
            ligne.etat = kEteint;
            ligne.message = Tr("vocalyne-hote moteurs allume {1}", ligne.nom);
        }
    }
    for (DescriptionMoteur const& description : descriptions) {
        lignes.push_back(ExamineExterne(description, reglages));
    }
    Sortie sortie(STDOUT_FILENO);
    if (json) {
        sortie.Ecris(DonneJson(lignes));
    } else {
        for (LigneMoteur const& ligne : lignes) {
            sortie.Ecris(DonneTexte(ligne));
        }
    }
    sortie.Verifie();
}

/// Has npm install the engine's package for this person alone; what npm says is passed on.
void Installe(DescriptionMoteur const& description) {
    if (description.npm.isEmpty()) {
        throw ErreurHote(kSortieUsage, DonneInstallation(description));
    }
    if (QStandardPaths::findExecutable(QStringLiteral("npm")).isEmpty()) {
        throw ErreurHote(kSortieInterne, Tr("Il faut npm : sudo apt install npm"));
    }
    QString const dossier = DonneDossierNpm(description.nom);
    QDir().mkpath(dossier);
    QProcess npm;
    npm.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    npm.start(QStringLiteral("npm"),
              {QStringLiteral("install"), QStringLiteral("--no-audit"), QStringLiteral("--no-fund"),
               QStringLiteral("--ignore-scripts"), QStringLiteral("--prefix"), dossier,
               description.npm});
    if (!npm.waitForFinished(-1) || npm.exitStatus() != QProcess::NormalExit ||
        npm.exitCode() != 0) {
        throw ErreurHote(kSortieInterne, Tr("npm n’a pas pu installer {1}.", description.npm));
    }
    Sortie(STDOUT_FILENO).Ecris(Tr("{1} est installé.", description.nom) + '\n');
}

/// A verb and an engine.
void Agis(QStringList const& ordre, std::vector<DescriptionMoteur> const& descriptions,
          ReglagesHote& reglages) {
    QString const verbe = ordre.value(0);
    QString const nom = ordre.value(1);
    auto const description = std::find_if(descriptions.begin(), descriptions.end(),
                                          [&](auto const& d) { return d.nom == nom; });
    bool const interne = nom == QLatin1String("hunspell") || nom == QLatin1String("regles");
    if (!interne && description == descriptions.end()) {
        throw ErreurHote(kSortieUsage, Tr("Moteur inconnu : {1}", nom));
    }
    if (verbe == QLatin1String("eteins") || verbe == QLatin1String("allume")) {
        reglages.EteinsMoteur(nom, verbe == QLatin1String("eteins"));
    } else if (verbe == QLatin1String("adresse")) {
        reglages.MetsAdresse(nom, ordre.value(2));
    } else if (verbe == QLatin1String("installe") && !interne) {
        Installe(*description);
    } else {
        throw ErreurHote(kSortieUsage, Tr("Commande inconnue : {1}", verbe));
    }
}

} // namespace

eCodeSortie ExecuteMoteurs(OptionsHote const& options) {
    ReglagesHote reglages;
    reglages.Charge();
    QStringList fautes;
    auto const descriptions = DecouvreMoteurs(reglages, fautes);
    for (QString const& faute : fautes) {
        Avertis(faute.toStdString());
    }
    if (options.ordre.isEmpty()) {
        Liste(descriptions, reglages, options.json);
    } else {
        Agis(options.ordre, descriptions, reglages);
    }
    return kSortieReussie;
}

} // namespace hote
