// SPDX-License-Identifier: MPL-2.0
#include "InstanceUnique.h"

#include <QCryptographicHash>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>

namespace hote {

namespace {

constexpr char kChemin[] = "/com/ombrel/vocalyne/Fenetre";
constexpr char kInterface[] = "org.freedesktop.Application";

} // namespace

QString InstanceUnique::DonneNomDeService(QString const& id) {
    // An identifier may hold what a bus name may not, and more of it.
    auto const empreinte = QCryptographicHash::hash(id.toUtf8(), QCryptographicHash::Sha1).toHex();
    return QStringLiteral("com.ombrel.vocalyne.Fenetre.d") + QString::fromLatin1(empreinte);
}

InstanceUnique::InstanceUnique(QString const& id, QObject* parent)
    : QObject(parent)
    , service_(DonneNomDeService(id)) {
    new AdaptateurApplication(*this); // this object's own
}

bool InstanceUnique::EstPremiere(QString const& page) {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        return true;
    }
    bus.registerObject(QLatin1String(kChemin), this);
    if (bus.registerService(service_)) {
        return true;
    }
    QDBusMessage demande = QDBusMessage::createMethodCall(
        service_, QLatin1String(kChemin), QLatin1String(kInterface),
        page.isEmpty() ? QStringLiteral("Activate") : QStringLiteral("ActivateAction"));
    if (page.isEmpty()) {
        demande << QVariantMap();
    } else {
        demande << page << QVariantList() << QVariantMap();
    }
    // Waited for, so that the question is on its way before this process ends.
    return bus.call(demande).type() == QDBusMessage::ErrorMessage;
}

void AdaptateurApplication::Activate(QVariantMap const& /*platformData*/) {
    Q_EMIT instance_.Demandee({});
}

void AdaptateurApplication::ActivateAction(QString const& actionName,
                                           QVariantList const& /*parameter*/,
                                           QVariantMap const& /*platformData*/) {
    Q_EMIT instance_.Demandee(actionName);
}

void AdaptateurApplication::Open(QStringList const& /*uris*/, QVariantMap const& /*platformData*/) {
    Q_EMIT instance_.Demandee({});
}

} // namespace hote
