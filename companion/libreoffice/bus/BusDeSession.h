// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <gio/gio.h>

#include <memory>
#include <string>

namespace extension {

struct Liberation {
    void operator()(char* chaine) const { g_free(chaine); }
    void operator()(GVariant* valeur) const { g_variant_unref(valeur); }
    void operator()(GError* erreur) const { g_error_free(erreur); }
};
/// Something of GLib's that is ours to free.
template <typename T>
using Tenu = std::unique_ptr<T, Liberation>;

/// The session bus's address; empty without one. GLib would start a bus of its own then: not for us
/// to do. Any thread.
std::string AdresseDuBus();

/// A call to the bus itself, waited for at most 5 s; null on failure, and once `arret` is
/// cancelled. Any process of the user can answer in the bus's place, but cannot sign as the bus:
/// such an answer is passed over and the question asked again, some times, which these questions
/// bear. `arguments` is taken over. Bus thread.
Tenu<GVariant> DemandeAuBus(GDBusConnection* connexion, GCancellable* arret, char const* methode,
                            GVariant* arguments);

/// Waits until all that was sent has gone out, or for 300 ms: a bus that stands still takes nothing
/// in. Serves meanwhile what comes to `contexte`, the calling thread's own. Bus thread.
void Ecoule(GMainContext* contexte, GDBusConnection* connexion);

} // namespace extension
