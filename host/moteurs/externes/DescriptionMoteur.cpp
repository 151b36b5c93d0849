// SPDX-License-Identifier: MPL-2.0
#include "DescriptionMoteur.h"

#include "moteurs/FaisParagraphe.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QStandardPaths>

#include <algorithm>
#include <thread>

namespace hote {

namespace {

constexpr int kContrat = 1;
constexpr int kExemplairesMax = 8;

QString Remplis(QString texte, LieuxMoteur const& lieux) {
    return texte.replace(QLatin1String("{dossier}"), lieux.dossier)
        .replace(QLatin1String("{donnees}"), lieux.donnees)
        .replace(QLatin1String("{adresse}"), lieux.adresse);
}

QStringList LisListe(QJsonValue const& valeur, LieuxMoteur const& lieux) {
    QStringList liste;
    for (auto const& element : valeur.toArray()) {
        liste.append(Remplis(element.toString(), lieux));
    }
    return liste;
}

/// "auto": what a machine can bear beside its person's work.
int LisExemplaires(QJsonValue const& valeur) {
    if (valeur.toString() == QLatin1String("auto")) {
        return std::clamp(static_cast<int>(std::thread::hardware_concurrency()) - 1, 1, 3);
    }
    return std::clamp(valeur.toInt(1), 1, kExemplairesMax);
}

} // namespace

bool DescriptionMoteur::EstPresent() const {
    bool const programme =
        !QStandardPaths::findExecutable(QString::fromStdString(commande.front())).isEmpty();
    return programme && std::all_of(fichiers.begin(), fichiers.end(), [](QString const& fichier) {
               return QFileInfo::exists(fichier);
           });
}

bool DescriptionMoteur::Juge(QString const& langue) const {
    return langues.contains(langue) || langues.contains(DonneLangueSansPays(langue));
}

std::optional<DescriptionMoteur> LisDescription(QByteArray const& json, LieuxMoteur const& lieux,
                                                QString& faute) {
    QJsonParseError erreur{};
    QJsonObject const objet = QJsonDocument::fromJson(json, &erreur).object();
    if (erreur.error != QJsonParseError::NoError) {
        faute = erreur.errorString();
        return std::nullopt;
    }
    if (objet.value(QLatin1String("contrat")).toInt() != kContrat) {
        faute = QStringLiteral("\"contrat\" is not %1").arg(kContrat);
        return std::nullopt;
    }
    DescriptionMoteur description;
    description.nom = objet.value(QLatin1String("nom")).toString();
    static QRegularExpression const bonNom(QStringLiteral("^[a-z][a-z0-9-]{0,39}$"));
    if (!bonNom.match(description.nom).hasMatch()) {
        faute = QStringLiteral("\"nom\" is not lower-case letters, digits and hyphens");
        return std::nullopt;
    }
    description.langues = LisListe(objet.value(QLatin1String("langues")), {});
    for (QString const& mot : LisListe(objet.value(QLatin1String("commande")), lieux)) {
        description.commande.push_back(mot.toStdString());
    }
    if (description.langues.isEmpty() || description.commande.empty() ||
        description.commande.front().empty()) {
        faute = QStringLiteral("\"langues\" and \"commande\" must not be empty");
        return std::nullopt;
    }
    description.fichiers = LisListe(objet.value(QLatin1String("fichiers")), lieux);
    description.paquet = objet.value(QLatin1String("paquet")).toString();
    description.npm = objet.value(QLatin1String("npm")).toString();
    description.reglage = objet.value(QLatin1String("reglage")).toString();
    description.exemplaires = LisExemplaires(objet.value(QLatin1String("exemplaires")));
    description.demarrageMs = objet.value(QLatin1String("demarrageMs")).toInt(20000);
    description.examenMs = objet.value(QLatin1String("examenMs")).toInt(10000);
    return description;
}

} // namespace hote
