// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "EnvoisEnCours.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QMetaType>
#include <QVariant>

/// The one place where a pending reply of the companion becomes a value.
///
/// Whatever goes wrong gives the neutral value of the type (empty, 0, false): an error reply (whose
/// argument 0 is the error's text, never an answer), a reply of another type or without argument,
/// no reply within the proxy's time-out, a bus that goes away during the wait, and a reply that did
/// not come from the owner of the companion's name (any process of the user can forge one: QtDBus
/// matches a reply by its number alone).
///
/// Waiting blocks the calling thread, without running its event loop. Call on the thread of the
/// proxy.
namespace reponseProxy {

/// Waits until the call is finished or its time is over: the proxy's time-out, or the bus library's
/// default of 25 s where it has none. True when a normal reply came from the owner of the name.
bool Attends(QDBusAbstractInterface& proxy, QDBusPendingCall const& appel);

/// Argument 0 of a call that `Attends` found true, as a `Valeur` (QString, int or bool). Does not
/// wait.
template <class Valeur>
Valeur DonneArgument(QDBusPendingCall const& appel) {
    auto const argument = appel.reply().arguments().value(0);
    if (argument.userType() == qMetaTypeId<QDBusArgument>()) {
        auto const enveloppe = argument.value<QDBusArgument>();
        if (enveloppe.currentType() != QDBusArgument::BasicType) {
            return Valeur();
        }
        auto const contenu = enveloppe.asVariant();
        return contenu.userType() == qMetaTypeId<Valeur>() ? contenu.value<Valeur>() : Valeur();
    }
    return argument.userType() == qMetaTypeId<Valeur>() ? argument.value<Valeur>() : Valeur();
}

/// Waits as `Attends` does and reads argument 0.
template <class Valeur>
Valeur Lis(QDBusAbstractInterface& proxy, QDBusPendingCall const& appel) {
    return Attends(proxy, appel) ? DonneArgument<Valeur>(appel) : Valeur();
}

/// Is the proxy's bus connection up?
bool EstConnecte(QDBusAbstractInterface const& proxy);

/// Was the call queued? False when this side refused it: no connection, or names that no bus can
/// have. An error that came back, however soon, is an answer: the call had left.
bool EstPartie(QDBusPendingCall const& appel);

/// Sends what nobody waits for: `appelle` makes the call. True once its message is queued on a
/// connected bus; what becomes of it is never looked at. Without a connection, and where too many
/// are on their way already (`EnvoisEnCours.h`), nothing is called.
template <class Appel>
bool Envoie(QDBusAbstractInterface& proxy, Appel const& appelle) {
    if (!EstConnecte(proxy) || !envoisEnCours::FaisPlace(proxy)) {
        return false;
    }
    QDBusPendingCall const appel = appelle();
    envoisEnCours::Retiens(proxy, appel);
    return EstPartie(appel);
}

} // namespace reponseProxy
