// SPDX-License-Identifier: MPL-2.0
#include "ReponseProxy.h"

#include "Contrat.h"
#include "QuestionAuBus.h"

#include <QCoreApplication>
#include <QDBusAbstractInterface>
#include <QDBusConnection>
#include <QDBusError>
#include <QDBusServiceWatcher>
#include <QEvent>

#include <algorithm>
#include <chrono>

namespace {

using Horloge = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr milliseconds kDelaiParDefaut{contrat::kDelaiOrdinaireMs};
constexpr char const* kPropriete = "vocalyneProprietaire";

/// Watches who owns the proxy's service, on behalf of the memory of it, which is a property of the
/// proxy: a word of the bus that the owner has changed empties that. Made when the owner is first
/// asked for, and before: what the bus says later than its answer comes in later, too.
void SuisLeNom(QDBusAbstractInterface& proxy) {
    auto const nom = QLatin1String(kPropriete);
    auto* guet = proxy.findChild<QDBusServiceWatcher*>(nom, Qt::FindDirectChildrenOnly);
    if (guet == nullptr) {
        guet = new QDBusServiceWatcher(proxy.service(), proxy.connection(),
                                       QDBusServiceWatcher::WatchForOwnerChange, &proxy);
        guet->setObjectName(nom);
        QObject::connect(guet, &QDBusServiceWatcher::serviceOwnerChanged, guet,
                         [&proxy] { proxy.setProperty(kPropriete, QString()); });
    }
    // QtDBus hands such words over to this thread as events, and nobody runs its loop while the
    // host is in here. (It takes them from the bus alone, not from whoever sends the like.)
    QCoreApplication::sendPostedEvents(guet, QEvent::MetaCall);
}

/// Is the sender the owner of the proxy's service? The bus is asked where a reply comes from
/// someone else than the owner that is remembered: at first, and when the name has changed hands.
bool VientDuCompagnon(QDBusAbstractInterface& proxy, QString const& expediteur,
                      milliseconds delai) {
    if (expediteur.isEmpty()) {
        return false;
    }
    SuisLeNom(proxy);
    if (proxy.property(kPropriete).toString() == expediteur) {
        return true;
    }
    auto const reponse = questionAuBus::Demande(proxy.connection(), QStringLiteral("GetNameOwner"),
                                                {proxy.service()}, delai);
    auto const proprietaire = reponse.value_or(QVariant()).toString();
    proxy.setProperty(kPropriete, proprietaire);
    return proprietaire == expediteur;
}

} // namespace

namespace reponseProxy {

bool Attends(QDBusAbstractInterface& proxy, QDBusPendingCall const& appel) {
    auto const delai = proxy.timeout() < 0 ? kDelaiParDefaut : milliseconds(proxy.timeout());
    auto const depart = Horloge::now();
    if (!questionAuBus::AttendsLaFin(proxy.connection(), appel, delai) || !appel.isValid()) {
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
