// SPDX-License-Identifier: MPL-2.0
#include "Avertissement.h"
#include "Commandes.h"
#include "EtatDesMoteurs.h"
#include "Sortie.h"
#include "commun/EcritureJson.h"
#include "commun/ErreurHote.h"
#include "commun/MessagesHote.h"
#include "moteurs/ensemble/Decouverte.h"
#include "moteurs/externes/MoteurExterne.h"

#include <QDir>
#include <QProcess>
#include <QStandardPaths>

#include <unistd.h>

#include <algorithm>

namespace hote {

namespace {

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

void Liste(ReglagesHote const& reglages, bool json) {
    auto const lignes = ExamineMoteurs(reglages, true);
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
        Liste(reglages, options.json);
    } else {
        Agis(options.ordre, descriptions, reglages);
    }
    return kSortieReussie;
}

} // namespace hote
