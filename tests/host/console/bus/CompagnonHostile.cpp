// SPDX-License-Identifier: MPL-2.0
#include "CompagnonHostile.h"

#include <QDBusMessage>

#include <gtest/gtest.h>

CompagnonHostile::CompagnonHostile(QString const& instance, Reponse reponse)
    : nom_(QStringLiteral("hostile-") + instance)
    , connexion_(
          QDBusConnection::connectToBus(qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"), nom_))
    , reponse_(std::move(reponse)) {
    EXPECT_TRUE(
        connexion_.registerVirtualObject(QStringLiteral("/com/ombrel/vocalyne/texteurs/OpenOffice"),
                                         this, QDBusConnection::SubPath));
    EXPECT_TRUE(connexion_.registerService(
        QStringLiteral("com.ombrel.vocalyne.texteurs.OpenOffice.") + instance));
}

CompagnonHostile::~CompagnonHostile() {
    QDBusConnection::disconnectFromBus(nom_);
}

QString CompagnonHostile::introspect(QString const& /*chemin*/) const {
    return {};
}

bool CompagnonHostile::handleMessage(QDBusMessage const& message,
                                     QDBusConnection const& connexion) {
    ++nombre_;
    return reponse_(message, connexion);
}

CompagnonHostile::Reponse CompagnonHostile::Texte(QString const& texte) {
    return [texte](QDBusMessage const& message, QDBusConnection const& connexion) {
        return connexion.send(message.createReply(texte));
    };
}

CompagnonHostile::Reponse CompagnonHostile::Muet() {
    return
        [](QDBusMessage const& /*message*/, QDBusConnection const& /*connexion*/) { return true; };
}
