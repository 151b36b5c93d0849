// SPDX-License-Identifier: MPL-2.0
#include "BusDeSession.h"

#include <cstdlib>

namespace extension {

namespace {
constexpr unsigned kPatienceEnFin = 300; // ms
} // namespace

std::string AdresseDuBus() {
    char const* const voulue = std::getenv("DBUS_SESSION_BUS_ADDRESS");
    if (voulue != nullptr && *voulue != '\0') {
        return voulue;
    }
    Tenu<char> const prise(g_build_filename(g_get_user_runtime_dir(), "bus", nullptr));
    if (g_file_test(prise.get(), G_FILE_TEST_EXISTS) == FALSE) {
        return {};
    }
    Tenu<char> const echappee(g_dbus_address_escape_value(prise.get()));
    return std::string("unix:path=") + echappee.get();
}

Tenu<GVariant> DemandeAuBus(GDBusConnection* connexion, GCancellable* arret, char const* methode,
                            GVariant* arguments) {
    return Tenu<GVariant>(g_dbus_connection_call_sync(
        connexion, "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", methode,
        arguments, nullptr, G_DBUS_CALL_FLAGS_NONE, 5'000, arret, nullptr));
}

void Ecoule(GMainContext* contexte, GDBusConnection* connexion) {
    struct Envoi {
        bool fini = false;
    };
    // Shared, as the sending may end when nobody waits any more.
    auto const envoi = std::make_shared<Envoi>();
    g_dbus_connection_flush(
        connexion, nullptr,
        [](GObject* /*source*/, GAsyncResult* /*resultat*/, gpointer donnee) {
            std::unique_ptr<std::shared_ptr<Envoi>> const tenu(
                static_cast<std::shared_ptr<Envoi>*>(donnee));
            (*tenu)->fini = true;
        },
        new std::shared_ptr<Envoi>(envoi));
    bool passe = false;
    GSource* const limite = g_timeout_source_new(kPatienceEnFin);
    g_source_set_callback(
        limite,
        [](gpointer donnee) -> gboolean {
            *static_cast<bool*>(donnee) = true;
            return G_SOURCE_REMOVE;
        },
        &passe, nullptr);
    g_source_attach(limite, contexte);
    while (!envoi->fini && !passe) {
        g_main_context_iteration(contexte, TRUE);
    }
    g_source_destroy(limite);
    g_source_unref(limite);
}

} // namespace extension
