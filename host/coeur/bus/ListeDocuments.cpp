// SPDX-License-Identifier: MPL-2.0
#include "ListeDocuments.h"

#include "commun/MessagesHote.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSet>

namespace hote {

namespace {

// Far beyond any list of documents; keeps a hostile companion from costing much memory.
constexpr int kTailleMax = 4 * 1024 * 1024;
constexpr int kNombreMax = 10000;

/// What a companion need not say is left out where it is not what the contract has.
QString LisGenre(QJsonValue const& valeur) {
    static QStringList const genres{QStringLiteral("writer"), QStringLiteral("calc"),
                                    QStringLiteral("impress"), QStringLiteral("draw"),
                                    QStringLiteral("texte")};
    return genres.contains(valeur.toString()) ? valeur.toString() : QString();
}

QString LisLangue(QJsonValue const& valeur) {
    static QRegularExpression const etiquette(
        QStringLiteral("\\A[A-Za-z]{2,8}(-[A-Za-z0-9]{1,8}){0,4}\\z"));
    return etiquette.match(valeur.toString()).hasMatch() ? valeur.toString() : QString();
}

bool LisDocument(QString const& instance, QJsonValue const& valeur, DocumentAnnonce& document) {
    QJsonObject const objet = valeur.toObject();
    QJsonValue const id = objet.value(QLatin1String("id"));
    QJsonValue const titre = objet.value(QLatin1String("titre"));
    QJsonValue const chemin = objet.value(QLatin1String("chemin"));
    document = {id.toString(), titre.toString(), chemin.toString(),
                LisGenre(objet.value(QLatin1String("genre"))),
                LisLangue(objet.value(QLatin1String("langue")))};
    return id.isString() && titre.isString() && chemin.isString() &&
           document.id.startsWith(instance + QLatin1Char('~'));
}

} // namespace

void LisDocuments(QString const& instance, QString const& reponse, ListeDocuments& liste) {
    auto const avertis = [&] {
        liste.avertissements.push_back(
            Tr("Le compagnon {1} a donné une liste de documents qui ne se lit pas.", instance));
    };
    if (reponse.size() > kTailleMax) {
        avertis();
        return;
    }
    QJsonParseError erreur;
    QJsonDocument const json = QJsonDocument::fromJson(reponse.toUtf8(), &erreur);
    if (erreur.error != QJsonParseError::NoError || !json.isArray()) {
        avertis();
        return;
    }
    bool averti = false;
    int nombre = 0;
    for (QJsonValue const valeur : json.array()) {
        DocumentAnnonce document;
        if (++nombre <= kNombreMax && LisDocument(instance, valeur, document)) {
            liste.documents.push_back(document);
        } else if (!averti) {
            avertis();
            averti = true;
        }
    }
}

} // namespace hote
