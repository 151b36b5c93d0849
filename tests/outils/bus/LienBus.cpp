// SPDX-License-Identifier: MPL-2.0
#include "LienBus.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

#include <dbus/dbus.h>

namespace {

/// QtDBus wants one; a test of code that makes its own has made it before it gets here. Never
/// destroyed: the order of destruction at a process's end is nobody's friend.
void AssureApplication() {
    if (!QCoreApplication::instance()) {
        static int nombre = 1;
        static char nom[] = "essai";
        static char* arguments[] = {nom, nullptr};
        static auto* const application = new QCoreApplication(nombre, arguments);
        Q_UNUSED(application)
    }
}

QString NomSuivant() {
    static int numero = 0;
    return QStringLiteral("essai-%1").arg(++numero);
}

} // namespace

LienBus::LienBus(QString service, QString objet, QString interface)
    : nom_(NomSuivant())
    , connexion_(nom_)
    , service_(std::move(service))
    , objet_(std::move(objet))
    , interface_(std::move(interface)) {
    AssureApplication();
    connexion_ = QDBusConnection::connectToBus(QDBusConnection::SessionBus, nom_);
    if (!connexion_.isConnected()) {
        ADD_FAILURE() << "no bus: " << connexion_.lastError().message().toStdString();
        return;
    }
    dbus_connection_set_max_received_size(
        static_cast<DBusConnection*>(connexion_.internalPointer()), 512L << 20);
}

LienBus::~LienBus() {
    Raccroche();
}

void LienBus::Raccroche() {
    connexion_ = QDBusConnection(QString());
    QDBusConnection::disconnectFromBus(nom_);
}

QDBusMessage LienBus::Message(QString const& methode, QVariantList const& arguments) const {
    QDBusMessage message = QDBusMessage::createMethodCall(service_, objet_, interface_, methode);
    message.setArguments(arguments);
    return message;
}

QDBusMessage LienBus::Appelle(QString const& methode, QVariantList const& arguments,
                              int delaiMs) const {
    return connexion_.call(Message(methode, arguments), QDBus::Block, delaiMs);
}

void LienBus::Envoie(QString const& methode, QVariantList const& arguments) const {
    connexion_.send(Message(methode, arguments));
}
