// SPDX-License-Identifier: MPL-2.0
#include "CompagnonHostile.h"

#include <QDBusMessage>

#include <gtest/gtest.h>

namespace {

QString DonneObjet() {
    return QStringLiteral("/com/ombrel/vocalyne/texteurs/OpenOffice");
}

} // namespace

CompagnonHostile::CompagnonHostile(QString const& instance, Reponse reponse)
    : nom_(QStringLiteral("hostile-") + instance)
    , connexion_(
          QDBusConnection::connectToBus(qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"), nom_))
    , reponse_(std::move(reponse)) {
    EXPECT_TRUE(connexion_.registerVirtualObject(DonneObjet(), this, QDBusConnection::SubPath));
    EXPECT_TRUE(connexion_.registerService(
        QStringLiteral("com.ombrel.vocalyne.texteurs.OpenOffice.") + instance));
}

CompagnonHostile::~CompagnonHostile() {
    Pars();
}

void CompagnonHostile::Pars() {
    // QtDBus's own thread takes the connection down, and calls what is registered there to the end.
    connexion_.unregisterObject(DonneObjet(), QDBusConnection::UnregisterTree);
    connexion_ = QDBusConnection(QString());
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
