// SPDX-License-Identifier: MPL-2.0
#include "BusDeSession.h"

#include <algorithm>
#include <cstdlib>

namespace extension {

namespace {

constexpr unsigned kPatienceEnFin = 300; // ms
constexpr gint64 kPatience = 5'000'000;  // us
constexpr char kNomDuBus[] = "org.freedesktop.DBus";

struct Lache {
    void operator()(gpointer objet) const { g_object_unref(objet); }
};
template <typename T>
using Objet = std::unique_ptr<T, Lache>;

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
    Tenu<GVariant> const tenus(g_variant_ref_sink(arguments));
    auto const echeance = g_get_monotonic_time() + kPatience;
    constexpr int kEssais = 32; // a forger is in luck once in a while, not each time
    for (int essai = 0; essai < kEssais; ++essai) {
        Objet<GDBusMessage> const question(
            g_dbus_message_new_method_call(kNomDuBus, "/org/freedesktop/DBus", kNomDuBus, methode));
        g_dbus_message_set_body(question.get(), tenus.get());
        auto const reste = std::max<gint64>((echeance - g_get_monotonic_time()) / 1'000, 1);
        Objet<GDBusMessage> const reponse(g_dbus_connection_send_message_with_reply_sync(
            connexion, question.get(), G_DBUS_SEND_MESSAGE_FLAGS_NONE, static_cast<int>(reste),
            nullptr, arret, nullptr));
        if (!reponse) {
            return nullptr;
        }
        if (g_strcmp0(g_dbus_message_get_sender(reponse.get()), kNomDuBus) != 0) {
            continue;
        }
        auto* const corps = g_dbus_message_get_body(reponse.get());
        bool const estReponse =
            g_dbus_message_get_message_type(reponse.get()) == G_DBUS_MESSAGE_TYPE_METHOD_RETURN;
        return Tenu<GVariant>(estReponse && corps != nullptr ? g_variant_ref(corps) : nullptr);
    }
    return nullptr;
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
