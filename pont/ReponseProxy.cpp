// SPDX-License-Identifier: MPL-2.0
#include "ReponseProxy.h"

#include "Contrat.h"

#include <QDBusAbstractInterface>
#include <QDBusConnection>
#include <QDBusError>

#include <algorithm>
#include <chrono>
#include <thread>

namespace {

using Horloge = std::chrono::steady_clock;
using std::chrono::microseconds;
using std::chrono::milliseconds;

constexpr milliseconds kDelaiParDefaut{contrat::kDelaiOrdinaireMs};
constexpr char const* kPropriete = "vocalyneProprietaire";

/// Waits for the end of a call. QtDBus' own wait has no limit of its own and does not end when the
/// bus goes away, so the call is looked at again and again: at once at first, then after pauses
/// that grow with the time waited, so that they never add more than a sixteenth to it. The bus is
/// looked at only from then on: that takes the lock under which the reply would come in.
bool AttendsLaFin(QDBusConnection const& bus, QDBusPendingCall const& appel, milliseconds delai) {
    constexpr microseconds kSansPause{1000};
    constexpr microseconds kPauseMax{5000};
    auto const depart = Horloge::now();
    while (!appel.isFinished()) {
        auto const attendu = std::chrono::duration_cast<microseconds>(Horloge::now() - depart);
        if (attendu < kSansPause) {
            std::this_thread::yield();
            continue;
        }
        if (attendu >= delai || !bus.isConnected()) {
            return appel.isFinished();
        }
        std::this_thread::sleep_for(std::min(attendu / 16, kPauseMax));
    }
    return true;
}

/// The unique name that owns the service now; empty when nobody does or the bus does not say.
QString DemandeProprietaire(QDBusConnection const& bus, QString const& service,
                            milliseconds delai) {
    auto const nomDuBus = QStringLiteral("org.freedesktop.DBus");
    auto demande = QDBusMessage::createMethodCall(nomDuBus, QStringLiteral("/org/freedesktop/DBus"),
                                                  nomDuBus, QStringLiteral("GetNameOwner"));
    demande << service;
    auto const appel = bus.asyncCall(demande, static_cast<int>(delai.count()));
    if (!AttendsLaFin(bus, appel, delai) || !appel.isValid()) {
        return {};
    }
    // The bus itself is the only one that can sign with its name.
    auto const reponse = appel.reply();
    return reponse.service() == nomDuBus ? reponse.arguments().value(0).toString() : QString();
}

/// Is the sender the owner of the proxy's service? The owner is remembered with the proxy and asked
/// for only when a reply comes from someone else: at first, and when the companion was started
/// anew.
bool VientDuCompagnon(QDBusAbstractInterface& proxy, QString const& expediteur,
                      milliseconds delai) {
    if (expediteur.isEmpty()) {
        return false;
    }
    if (proxy.property(kPropriete).toString() == expediteur) {
        return true;
    }
    auto const proprietaire = DemandeProprietaire(proxy.connection(), proxy.service(), delai);
    proxy.setProperty(kPropriete, proprietaire);
    return proprietaire == expediteur;
}

} // namespace

namespace reponseProxy {

bool Attends(QDBusAbstractInterface& proxy, QDBusPendingCall const& appel) {
    auto const delai = proxy.timeout() < 0 ? kDelaiParDefaut : milliseconds(proxy.timeout());
    auto const depart = Horloge::now();
    if (!AttendsLaFin(proxy.connection(), appel, delai) || !appel.isValid()) {
        return false;
    }
    // Asking for the owner may take what is left of the time, not as much again.
    auto const attendu = std::chrono::duration_cast<milliseconds>(Horloge::now() - depart);
    return VientDuCompagnon(proxy, appel.reply().service(),
                            std::max(delai - attendu, milliseconds(1)));
}

bool EstConnecte(QDBusAbstractInterface const& proxy) {
    return proxy.connection().isConnected();
}

bool EstPartie(QDBusPendingCall const& appel) {
    if (!appel.isFinished() || !appel.isError()) {
        return true;
    }
    // What comes over the bus names its sender, and only a call that left can be given up waiting.
    return !appel.reply().service().isEmpty() || appel.error().type() == QDBusError::NoReply;
}

} // namespace reponseProxy
