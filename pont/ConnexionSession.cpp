// SPDX-License-Identifier: MPL-2.0
#include "ConnexionSession.h"

#include "Contrat.h"
#include "QuestionAuBus.h"
#include "SondeDuBus.h"
#include "UniChaine.h"

#include <dlfcn.h>

namespace {

// One message at the limit, and one being read.
constexpr long kReceptionMax = 2 * long{contrat::kLimiteMessage};

/// QtDBus's name for the connection that it shares. Looked up by it, that is not made.
QString DonneNomPartage() {
    return QStringLiteral("qt_default_session_bus");
}

QString DonneNomPropre() {
    return QStringLiteral("vocalyne-texteur");
}

QDBusConnection DonneMorte() {
    return QDBusConnection(QString());
}

/// A connection anew: QtDBus's own if it has not tried yet, else the plug-in's.
QDBusConnection Connecte() {
    if (QDBusConnection(DonneNomPartage()).name().isEmpty()) {
        return QDBusConnection::sessionBus();
    }
    QDBusConnection::disconnectFromBus(DonneNomPropre());
    return QDBusConnection::connectToBus(QDBusConnection::SessionBus, DonneNomPropre());
}

} // namespace

namespace connexionSession {

QDBusConnection Ouvre(std::chrono::milliseconds delai) {
    for (auto const& nom : {DonneNomPartage(), DonneNomPropre()}) {
        QDBusConnection bus(nom);
        if (bus.isConnected()) {
            // A proxy asks the bus something as it is made, and waits for it without a limit.
            auto const reponse = questionAuBus::Demande(bus, QStringLiteral("GetId"), {}, delai);
            if (bus.isConnected()) {
                return reponse ? bus : DonneMorte();
            }
        }
    }
    if (!sondeDuBus::Repond(sondeDuBus::DonneAdresse(), delai)) {
        return DonneMorte();
    }
    auto bus = Connecte();
    AccepteGrandesReponses(bus);
    return bus;
}

void RetiensQtDBus() {
    // The reference is never given back, on purpose.
    dlopen("libQt5DBus.so.5", RTLD_LAZY | RTLD_NOLOAD | RTLD_NODELETE);
}

void Ferme() {
    QDBusConnection::disconnectFromBus(DonneNomPropre());
}

void AccepteGrandesReponses(QDBusConnection const& bus) {
    // QtDBus offers the connection but not this setting, and has the library loaded already: it is
    // asked there, so that this module does not depend on it by itself.
    auto* const connexion = bus.internalPointer();
    auto* const bibliotheque = dlopen("libdbus-1.so.3", RTLD_LAZY | RTLD_NOLOAD);
    if (bibliotheque == nullptr) {
        return;
    }
    using Reglage = void (*)(void*, long);
    auto const regle =
        reinterpret_cast<Reglage>(dlsym(bibliotheque, "dbus_connection_set_max_received_size"));
    if (connexion != nullptr && regle != nullptr && bus.isConnected()) {
        regle(connexion, kReceptionMax);
    }
    dlclose(bibliotheque);
}

bool PeutVoyager(UniChaine const& texte) {
    auto const& unites = texte.VersQString();
    if (unites.size() > int{contrat::kUnitesArgumentMax}) {
        return false;
    }
    for (int i = 0; i < unites.size(); ++i) {
        auto const unite = unites.at(i);
        if (unite.isNull() || unite.isLowSurrogate()) {
            return false;
        }
        if (unite.isHighSurrogate() && (++i == unites.size() || !unites.at(i).isLowSurrogate())) {
            return false;
        }
    }
    return true;
}

} // namespace connexionSession
