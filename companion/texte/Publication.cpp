// SPDX-License-Identifier: MPL-2.0
#include "Publication.h"

#include "ChainesQt.h"
#include "Contrat.h"
#include "partage/Messages.h"

#include <QDBusMessage>

#include <dbus/dbus.h>

namespace compagnon {

namespace {

QString const kConnexion = QStringLiteral("vocalyne-bureau-texte");

// A message may have 128 MiB. Left at its default of half as much, libdbus stops reading for good
// after a single larger one; several may be on their way at once.
constexpr long kRecusMax = 4 * long{contrat::kLimiteMessage};

/// What the bus itself answers: argument 0 of its reply, 0 where there is none. Any process of the
/// user can answer in its place, but cannot sign as the bus: such an answer is passed over and the
/// question asked again, some times, which these questions bear.
uint DemandeAuBus(QDBusConnection const& bus, QString const& methode,
                  QVariantList const& arguments) {
    auto const nomDuBus = QStringLiteral("org.freedesktop.DBus");
    auto question = QDBusMessage::createMethodCall(
        nomDuBus, QStringLiteral("/org/freedesktop/DBus"), nomDuBus, methode);
    question.setArguments(arguments);
    constexpr int kEssais = 32; // a forger is in luck once in a while, not each time
    for (int essai = 0; essai < kEssais; ++essai) {
        QDBusMessage const reponse = bus.call(question);
        if (reponse.service() == nomDuBus) {
            return reponse.type() == QDBusMessage::ReplyMessage
                       ? reponse.arguments().value(0).toUInt()
                       : 0;
        }
        if (reponse.service().isEmpty()) {
            return 0; // made up on this side: no bus any more, or no answer in time
        }
    }
    return 0;
}

} // namespace

Publication::Publication(std::string const& instance)
    : connexion_(kConnexion)
    , service_(QLatin1String(contrat::kPrefixeService) + VersQString(instance))
    , objet_(QLatin1String(contrat::kPrefixeChemin) + VersQString(instance)) {}

Publication::~Publication() {
    // QtDBus's own thread takes the connection down later and still calls each object that it finds
    // registered or connected there, by then perhaps destroyed.
    connexion_.unregisterObject(QStringLiteral("/"), QDBusConnection::UnregisterTree);
    connexion_.disconnect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
                          QStringLiteral("org.freedesktop.DBus.Local"),
                          QStringLiteral("Disconnected"), this, SIGNAL(BusPerdu()));
    connexion_ = QDBusConnection(QString());
    QDBusConnection::disconnectFromBus(kConnexion);
}

std::string Publication::Connecte() {
    connexion_ = QDBusConnection::connectToBus(QDBusConnection::SessionBus, kConnexion);
    if (!connexion_.isConnected()) {
        return Dis({"Pas de bus de session ({1}). Lancez ce programme dans une session graphique, "
                    "ou par dbus-run-session.",
                    "No session bus ({1}). Run this program in a desktop session, or through "
                    "dbus-run-session."},
                   {VersUtf8(connexion_.lastError().message())});
    }
    dbus_connection_set_max_received_size(
        static_cast<DBusConnection*>(connexion_.internalPointer()), kRecusMax);
    connexion_.connect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
                       QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"),
                       this, SIGNAL(BusPerdu()));
    return {};
}

std::string Publication::Publie(QObject* bureau) {
    if (!connexion_.registerObject(objet_, bureau, QDBusConnection::ExportAdaptors) ||
        !connexion_.isConnected()) {
        return Dis({"Publication impossible ({1})", "Cannot publish ({1})"},
                   {VersUtf8(connexion_.lastError().message())});
    }
    constexpr uint kSansAttendre = DBUS_NAME_FLAG_DO_NOT_QUEUE;
    auto const reponse =
        DemandeAuBus(connexion_, QStringLiteral("RequestName"), {service_, kSansAttendre});
    bool const estLeNotre = reponse == DBUS_REQUEST_NAME_REPLY_PRIMARY_OWNER ||
                            reponse == DBUS_REQUEST_NAME_REPLY_ALREADY_OWNER;
    return estLeNotre ? std::string() : DisPris();
}

std::string Publication::DisPris() {
    auto const processus =
        DemandeAuBus(connexion_, QStringLiteral("GetConnectionUnixProcessID"), {service_});
    return Dis({"Le nom {1} est déjà pris, par le processus {2}. Choisissez une autre instance.",
                "The name {1} is taken, by process {2}. Choose another instance."},
               {VersUtf8(service_), processus != 0 ? std::to_string(processus) : std::string("?")});
}

} // namespace compagnon
