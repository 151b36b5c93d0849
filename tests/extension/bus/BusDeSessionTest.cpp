// SPDX-License-Identifier: MPL-2.0
// What the extension asks the bus itself, where somebody else answers in its place.
#include "bus/BusDeSession.h"
#include "outils/bus/Arroseur.h"
#include "outils/bus/BusPrive.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using extension::DemandeAuBus;
using extension::Tenu;

class AskingTheBus : public testing::Test {
  protected:
    /// What a connection that has just been made is answered first.
    std::string Demande(char const* methode, GVariant* arguments) const {
        auto* const connexion = g_dbus_connection_new_for_address_sync(
            bus_.Adresse().c_str(),
            static_cast<GDBusConnectionFlags>(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
                                              G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION),
            nullptr, nullptr, nullptr);
        if (connexion == nullptr) {
            return "no connection";
        }
        std::string dit = "nothing";
        if (auto const reponse = DemandeAuBus(connexion, nullptr, methode, arguments)) {
            Tenu<char> const texte(g_variant_print(reponse.get(), FALSE));
            dit = texte.get();
        }
        g_dbus_connection_close_sync(connexion, nullptr, nullptr);
        g_object_unref(connexion);
        return dit;
    }

    BusPrive bus_;
};

TEST_F(AskingTheBus, GivesItsAnswerAndNothingForAnError) {
    EXPECT_EQ("(true,)", Demande("NameHasOwner", g_variant_new("(s)", "org.freedesktop.DBus")));
    EXPECT_EQ("nothing", Demande("GetNameOwner", g_variant_new("(s)", "com.ombrel.personne")));
    EXPECT_EQ("nothing", Demande("Rien", g_variant_new("()")));
}

TEST_F(AskingTheBus, PassesOverWhatOthersAnswerInItsPlace) {
    Arroseur const arroseur(bus_.Adresse());
    constexpr int kFois = 200;
    for (int i = 0; i < kFois; ++i) {
        EXPECT_EQ("(true,)", Demande("NameHasOwner", g_variant_new("(s)", "org.freedesktop.DBus")))
            << i;
    }
    EXPECT_GT(arroseur.DonneNombre(), kFois);
}

} // namespace
