// SPDX-License-Identifier: MPL-2.0
#include "VeilleAppelants.h"

#include "ChainesQt.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace compagnon {

VeilleAppelants::VeilleAppelants(QDBusConnection const& connexion, Appelants& appelants)
    : connexion_(connexion)
    , appelants_(appelants) {
    guetteur_.setConnection(connexion);
    guetteur_.setWatchMode(QDBusServiceWatcher::WatchForUnregistration);
    connect(&guetteur_, &QDBusServiceWatcher::serviceUnregistered, this,
            &VeilleAppelants::EstParti);
}

void VeilleAppelants::Surveille(QString const& nomUnique) {
    if (guetteur_.watchedServices().contains(nomUnique)) {
        return;
    }
    guetteur_.addWatchedService(nomUnique);
    // It may have left before the watch began.
    QDBusMessage question = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("NameHasOwner"));
    question.setArguments({nomUnique});
    auto* const reponse = new QDBusPendingCallWatcher(connexion_.asyncCall(question), this);
    connect(reponse, &QDBusPendingCallWatcher::finished, this, [this, reponse, nomUnique] {
        QDBusPendingReply<bool> const existe = *reponse;
        if (existe.isValid() && !existe.value()) {
            EstParti(nomUnique);
        }
        reponse->deleteLater();
    });
}

void VeilleAppelants::EstParti(QString const& nomUnique) {
    if (!guetteur_.removeWatchedService(nomUnique)) {
        return; // told twice
    }
    appelants_.Oublie(VersUtf8(nomUnique));
    if (appelants_.Nombre() == 0) {
        Q_EMIT DernierParti();
    }
}

} // namespace compagnon
