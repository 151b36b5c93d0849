// SPDX-License-Identifier: MPL-2.0
#include "Journal.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace {

// Cut when they come in, so that a flood of long texts takes no memory.
QDBusMessage Abrege(QDBusMessage appel) {
    QVariantList arguments = appel.arguments();
    for (QVariant& argument : arguments) {
        if (argument.type() == QVariant::String) {
            QString texte = argument.toString();
            texte.truncate(Journal::kUnitesMax);
            texte.squeeze();
            argument = texte;
        }
    }
    appel.setArguments(arguments);
    return appel;
}

} // namespace

void Journal::Note(QDBusMessage const& appel) {
    if (appels_.size() < kAppelsMax) {
        appels_.push_back(Abrege(appel));
    }
    ++nombres_[appel.member()];
    ++nombres_[QStringLiteral("*")];
    Reponds();
}

void Journal::Vide() {
    appels_.clear();
    nombres_.clear();
}

QString Journal::Donne() const {
    QJsonArray liste;
    for (QDBusMessage const& appel : appels_) {
        liste.append(QJsonObject{
            {QStringLiteral("methode"), appel.member()},
            {QStringLiteral("arguments"), QJsonArray::fromVariantList(appel.arguments())},
            {QStringLiteral("appelant"), appel.service()},
        });
    }
    return QString::fromUtf8(QJsonDocument(liste).toJson(QJsonDocument::Compact));
}

int Journal::Nombre(QString const& methode) const {
    return nombres_.value(methode);
}

void Journal::Attends(QDBusMessage const& demande, QDBusConnection const& connexion,
                      QString const& methode, int nombre) {
    attentes_.push_back({demande, connexion, methode, nombre});
    Reponds();
}

void Journal::Reponds() {
    auto const reste =
        std::remove_if(attentes_.begin(), attentes_.end(), [this](Attente const& attente) {
            int const recus = Nombre(attente.methode);
            if (recus < attente.nombre) {
                return false;
            }
            attente.connexion.send(attente.demande.createReply(recus));
            return true;
        });
    attentes_.erase(reste, attentes_.end());
}
