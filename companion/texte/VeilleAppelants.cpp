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
    VerifieQuIlEstLa(nomUnique);
}

// It may have left before the watch began.
void VeilleAppelants::VerifieQuIlEstLa(QString const& nomUnique) {
    auto const nomDuBus = QStringLiteral("org.freedesktop.DBus");
    QDBusMessage question =
        QDBusMessage::createMethodCall(nomDuBus, QStringLiteral("/org/freedesktop/DBus"), nomDuBus,
                                       QStringLiteral("NameHasOwner"));
    question.setArguments({nomUnique});
    auto* const reponse = new QDBusPendingCallWatcher(connexion_.asyncCall(question), this);
    connect(reponse, &QDBusPendingCallWatcher::finished, this, [=] {
        reponse->deleteLater();
        auto const expediteur = reponse->reply().service();
        QDBusPendingReply<bool> const existe = *reponse;
        if (!expediteur.isEmpty() && expediteur != nomDuBus) {
            VerifieQuIlEstLa(nomUnique); // somebody answered in the bus's place
        } else if (existe.isValid() && !existe.value()) {
            EstParti(nomUnique);
        }
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
