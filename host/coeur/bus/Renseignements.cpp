// SPDX-License-Identifier: MPL-2.0
#include "Renseignements.h"

#include "Contrat.h"
#include "Questions.h"

#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace hote {

namespace {

// The connections that a plug-in has: the process's own, and what it opens after that lost its bus.
constexpr char kConnexionDeRechange[] = "vocalyne-texteur";

QDBusConnection DonneConnexionDuGreffon() {
    QDBusConnection const rechange{QLatin1String(kConnexionDeRechange)};
    return rechange.isConnected() ? rechange : QDBusConnection::sessionBus();
}

QString LisBase64(QJsonValue const& valeur) {
    return QString::fromUtf8(QByteArray::fromBase64(valeur.toString().toLatin1()));
}

} // namespace

Renseignements::Renseignements(QString const& id)
    : id_(id)
    , instance_(id.section(QLatin1Char('~'), 0, 0))
    , connexion_(QStringLiteral("vocalyne-hote-renseignements")) {}

std::optional<QDBusMessage> Renseignements::Demande(QDBusConnection const& bus,
                                                    char const* interface, char const* methode,
                                                    QVariantList const& arguments, int delaiMs) {
    QElapsedTimer montre;
    montre.start();
    if (!bus.isConnected() || !contrat::EstInstanceValide(instance_.toStdString())) {
        return std::nullopt;
    }
    QString const service = QLatin1String(contrat::kPrefixeService) + instance_;
    auto const proprietaire =
        Pose(bus, {QuestionAuBus(QStringLiteral("GetNameOwner"), {service})}, delaiMs).front();
    if (proprietaire.genre != Reponse::Genre::Donnee ||
        proprietaire.message.type() != QDBusMessage::ReplyMessage) {
        return std::nullopt;
    }
    QDBusMessage question =
        QDBusMessage::createMethodCall(proprietaire.message.arguments().value(0).toString(),
                                       QLatin1String(contrat::kPrefixeChemin) + instance_,
                                       QLatin1String(interface), QLatin1String(methode));
    question.setArguments(arguments);
    auto const reponse =
        Pose(bus, {question}, delaiMs - static_cast<int>(montre.elapsed())).front();
    if (reponse.genre != Reponse::Genre::Donnee ||
        reponse.message.type() != QDBusMessage::ReplyMessage) {
        return std::nullopt;
    }
    return reponse.message;
}

std::optional<DocumentAnnonce> Renseignements::DonneAnnonce(int delaiMs) {
    auto const reponse =
        Demande(connexion_.Donne(), contrat::kInterfaceDocuments, "DonneDocuments", {}, delaiMs);
    if (!reponse) {
        return std::nullopt;
    }
    ListeDocuments liste;
    LisDocuments(instance_, reponse->arguments().value(0).toString(), liste);
    for (DocumentAnnonce const& document : liste.documents) {
        if (document.id == id_) {
            return document;
        }
    }
    return std::nullopt;
}

std::vector<Renseignements::Zone> Renseignements::LisZones(int delaiMs) {
    auto const lecture = Demande(connexion_.Donne(), contrat::kInterfaceProxy,
                                 "SynchronisePositions", {id_}, delaiMs);
    auto const dits = Demande(connexion_.Donne(), contrat::kInterfaceDocuments, "DonneNomsDeZones",
                              {id_}, delaiMs);
    if (!lecture) {
        return {};
    }
    QJsonObject const noms =
        dits ? QJsonDocument::fromJson(dits->arguments().value(0).toString().toUtf8()).object()
             : QJsonObject();
    QJsonArray const lues =
        QJsonDocument::fromJson(lecture->arguments().value(0).toString().toUtf8())
            .object()
            .value(QLatin1String("Zones"))
            .toArray();
    std::vector<Zone> zones;
    zones.reserve(static_cast<std::size_t>(lues.size()));
    for (auto const& valeur : lues) {
        QJsonObject const zone = valeur.toObject();
        QString const cle = LisBase64(zone.value(QLatin1String("Nom")));
        zones.push_back(
            {cle, LisBase64(zone.value(QLatin1String("Texte"))), noms.value(cle).toString()});
    }
    return zones;
}

QString Renseignements::DonneRefus(QString const& cle, int delaiMs) {
    auto const reponse = Demande(DonneConnexionDuGreffon(), contrat::kInterfaceDocuments,
                                 "DonneRefus", {cle}, delaiMs);
    return reponse ? reponse->arguments().value(1).toString() : QString();
}

} // namespace hote
