// SPDX-License-Identifier: MPL-2.0
#include "ClientBureau.h"

#include "Contrat.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

namespace {

QString Q(std::string const& texte) {
    return QString::fromStdString(texte);
}

std::string DeBase64(QJsonValue const& valeur) {
    return QByteArray::fromBase64(valeur.toString().toLatin1()).toStdString();
}

} // namespace

ClientBureau::ClientBureau(std::string const& instance)
    : lien_(QLatin1String(contrat::kPrefixeService) + Q(instance),
            QLatin1String(contrat::kPrefixeChemin) + Q(instance),
            QLatin1String(contrat::kInterfaceProxy)) {}

std::string ClientBureau::Erreur(char const* methode, QVariantList const& arguments) const {
    return Appelle(methode, arguments).errorName().toStdString();
}

void ClientBureau::Initialise(std::string const& cle) const {
    EXPECT_EQ(Erreur("InitialiseTexteur", {Q(cle)}), "");
}

std::vector<ZoneServie> ClientBureau::Synchronise(std::string const& identifiant) const {
    QDBusMessage const reponse = Appelle("SynchronisePositions", {Q(identifiant)});
    EXPECT_EQ(reponse.errorMessage().toStdString(), "");
    QJsonParseError erreur{};
    QJsonDocument const document =
        QJsonDocument::fromJson(reponse.arguments().value(0).toString().toUtf8(), &erreur);
    EXPECT_EQ(erreur.error, QJsonParseError::NoError) << erreur.errorString().toStdString();
    std::vector<ZoneServie> zones;
    for (QJsonValue const valeur : document.object().value(QLatin1String("Zones")).toArray()) {
        QJsonObject const zone = valeur.toObject();
        zones.push_back({DeBase64(zone.value(QLatin1String("Nom"))),
                         DeBase64(zone.value(QLatin1String("Texte"))),
                         zone.value(QLatin1String("DebutSel")).toInt(),
                         zone.value(QLatin1String("FinSel")).toInt()});
    }
    return zones;
}

bool ClientBureau::PeutCorriger(std::string const& zone, int debut, int fin,
                                std::string const& attendu) const {
    QDBusMessage const reponse = Appelle("PeutCorriger", {Q(zone), debut, fin, Q(attendu)});
    EXPECT_EQ(reponse.errorMessage().toStdString(), "");
    return reponse.arguments().value(0).toBool();
}

std::string ClientBureau::Corrige(std::string const& zone, int debut, int fin,
                                  std::string const& texte) const {
    return Erreur("CorrigeDansTexteur", {Q(zone), debut, fin, Q(texte), false});
}

std::string ClientBureau::Texte(char const* methode) const {
    QDBusMessage const reponse = Appelle(methode);
    EXPECT_EQ(reponse.errorMessage().toStdString(), "") << methode;
    return reponse.arguments().value(0).toString().toStdString();
}

int ClientBureau::Entier(char const* methode) const {
    QDBusMessage const reponse = Appelle(methode);
    EXPECT_EQ(reponse.errorMessage().toStdString(), "") << methode;
    return reponse.arguments().value(0).toInt();
}
