// SPDX-License-Identifier: MPL-2.0
#include "Publication.h"

#include "ChainesQt.h"
#include "Contrat.h"
#include "partage/Messages.h"

#include <QDBusConnectionInterface>

#include <dbus/dbus.h>

namespace compagnon {

namespace {

QString const kConnexion = QStringLiteral("vocalyne-bureau-texte");

// A message may have 128 MiB. Left at its default of half as much, libdbus stops reading for good
// after a single larger one; several may be on their way at once.
constexpr long kRecusMax = 4 * long{contrat::kLimiteMessage};

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
    return connexion_.registerService(service_) ? std::string() : DisPris();
}

std::string Publication::DisPris() {
    QDBusReply<uint> const processus = connexion_.interface()->servicePid(service_);
    return Dis({"Le nom {1} est déjà pris, par le processus {2}. Choisissez une autre instance.",
                "The name {1} is taken, by process {2}. Choose another instance."},
               {VersUtf8(service_),
                processus.isValid() ? std::to_string(processus.value()) : std::string("?")});
}

} // namespace compagnon
