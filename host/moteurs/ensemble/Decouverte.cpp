// SPDX-License-Identifier: MPL-2.0
#include "Decouverte.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <filesystem>
#include <map>

namespace hote {

namespace {

QString DonneDossierDuProgramme() {
    std::error_code erreur;
    auto const programme = std::filesystem::read_symlink("/proc/self/exe", erreur);
    return QString::fromStdString(programme.parent_path().string());
}

} // namespace

QStringList DonneDossiersMoteurs() {
    if (qEnvironmentVariableIsSet("VOCALYNE_MOTEURS")) {
        return qEnvironmentVariable("VOCALYNE_MOTEURS").split(QLatin1Char(':'), Qt::SkipEmptyParts);
    }
    QString const relatif = QStringLiteral("/vocalyne/moteurs");
    QStringList dossiers{
        QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + relatif,
        QDir::cleanPath(DonneDossierDuProgramme() + QLatin1String("/../share") + relatif)};
    for (QString const& donnees :
         QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation)) {
        dossiers.append(donnees + relatif);
    }
    dossiers.removeDuplicates();
    return dossiers;
}

QString DonneDossierNpm(QString const& moteur) {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QLatin1String("/vocalyne/npm/") + moteur;
}

std::vector<DescriptionMoteur> DecouvreMoteurs(ReglagesHote const& reglages, QStringList& fautes) {
    std::map<QString, DescriptionMoteur> trouves;
    for (QString const& dossier : DonneDossiersMoteurs()) {
        QDir const lieu(dossier);
        for (QString const& nom : lieu.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
            QString const ici = lieu.filePath(nom);
            QFile fichier(ici + QLatin1String("/moteur.json"));
            if (!fichier.open(QIODevice::ReadOnly)) {
                continue;
            }
            QString faute;
            auto const description = LisDescription(
                fichier.readAll(), {ici, DonneDossierNpm(nom), reglages.DonneAdresse(nom)}, faute);
            if (!description || description->nom != nom) {
                fautes.append(
                    fichier.fileName() + QLatin1String(": ") +
                    (description ? QStringLiteral("\"nom\" is not the folder's name") : faute));
                continue;
            }
            trouves.emplace(nom, *description);
        }
    }
    std::vector<DescriptionMoteur> descriptions;
    descriptions.reserve(trouves.size());
    for (auto& trouve : trouves) {
        descriptions.push_back(std::move(trouve.second));
    }
    return descriptions;
}

} // namespace hote
