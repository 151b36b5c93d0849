// SPDX-License-Identifier: MPL-2.0
#include "ConnexionSession.h"

#include "Contrat.h"
#include "UniChaine.h"

#include <QDBusConnection>

#include <dlfcn.h>

namespace {

// One message at the limit, and one being read.
constexpr long kReceptionMax = 2 * long{contrat::kLimiteMessage};

} // namespace

namespace connexionSession {

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
