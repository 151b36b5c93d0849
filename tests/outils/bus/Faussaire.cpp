// SPDX-License-Identifier: MPL-2.0
#include "Faussaire.h"

#include <dbus/dbus.h>

#include <stdexcept>
#include <utility>

namespace {

DBusConnection* Rejoins(std::string const& adresse) {
    auto* const connexion = dbus_connection_open_private(adresse.c_str(), nullptr);
    if (connexion == nullptr || dbus_bus_register(connexion, nullptr) == 0) {
        throw std::runtime_error("no bus to listen on");
    }
    dbus_connection_set_exit_on_disconnect(connexion, 0);
    return connexion;
}

void Quitte(DBusConnection* connexion) {
    dbus_connection_close(connexion);
    dbus_connection_unref(connexion);
}

/// Comes back when the bus has agreed.
void DeviensMoniteur(DBusConnection* connexion, std::string const& regle) {
    auto* const appel = dbus_message_new_method_call(DBUS_SERVICE_DBUS, DBUS_PATH_DBUS,
                                                     DBUS_INTERFACE_MONITORING, "BecomeMonitor");
    char const* regles[] = {regle.c_str()};
    char const** const tableau = regles;
    dbus_uint32_t const drapeaux = 0;
    dbus_message_append_args(appel, DBUS_TYPE_ARRAY, DBUS_TYPE_STRING, &tableau, 1,
                             DBUS_TYPE_UINT32, &drapeaux, DBUS_TYPE_INVALID);
    DBusError erreur = DBUS_ERROR_INIT;
    auto* const reponse = dbus_connection_send_with_reply_and_block(connexion, appel, -1, &erreur);
    dbus_message_unref(appel);
    if (reponse == nullptr) {
        throw std::runtime_error(erreur.message);
    }
    dbus_message_unref(reponse);
}

} // namespace

Faussaire::Faussaire(std::string const& adresse, std::string methode, Reponse reponse)
    : methode_(std::move(methode))
    , reponse_(reponse) {
    dbus_threads_init_default();
    oreille_ = Rejoins(adresse);
    bouche_ = Rejoins(adresse);
    DeviensMoniteur(oreille_, "type='method_call',member='" + methode_ + "'");
    fil_ = std::thread([this] { Ecoute(); });
}

Faussaire::~Faussaire() {
    fini_ = true;
    fil_.join();
    Quitte(oreille_);
    Quitte(bouche_);
}

void Faussaire::PrendsLeNom(std::string const& service) {
    Envoie("RequestName", service);
}

void Faussaire::LaisseLeNom(std::string const& service) {
    Envoie("ReleaseName", service);
}

void Faussaire::Envoie(char const* methode, std::string const& service) {
    auto* const appel = dbus_message_new_method_call(DBUS_SERVICE_DBUS, DBUS_PATH_DBUS,
                                                     DBUS_INTERFACE_DBUS, methode);
    char const* const nom = service.c_str();
    dbus_uint32_t const sansAttendre = DBUS_NAME_FLAG_DO_NOT_QUEUE;
    dbus_message_append_args(appel, DBUS_TYPE_STRING, &nom, DBUS_TYPE_INVALID);
    if (std::string(methode) == "RequestName") {
        dbus_message_append_args(appel, DBUS_TYPE_UINT32, &sansAttendre, DBUS_TYPE_INVALID);
    }
    dbus_message_set_no_reply(appel, 1);
    dbus_connection_send(bouche_, appel, nullptr);
    dbus_connection_flush(bouche_);
    dbus_message_unref(appel);
}

void Faussaire::Ecoute() {
    constexpr int kTourMs = 20; // how long the end may have to wait
    while (!fini_ && dbus_connection_read_write(oreille_, kTourMs) != 0) {
        while (DBusMessage* const message = dbus_connection_pop_message(oreille_)) {
            if (dbus_message_get_type(message) == DBUS_MESSAGE_TYPE_METHOD_CALL &&
                dbus_message_get_member(message) == methode_) {
                Reponds(message);
            }
            dbus_message_unref(message);
        }
    }
}

void Faussaire::Reponds(DBusMessage* appel) {
    auto* const reponse = dbus_message_new_method_return(appel);
    std::string const objet = dbus_message_get_path(appel);
    auto const liste = R"([{"id": ")" + objet.substr(objet.rfind('/') + 1) +
                       R"(~forged", "titre": "forged", "chemin": ""}])";
    char const* const texte = reponse_ == Reponse::Documents ? liste.c_str() : "forged";
    dbus_bool_t const vrai = 1;
    if (reponse_ != Reponse::Vrai) {
        dbus_message_append_args(reponse, DBUS_TYPE_STRING, &texte, DBUS_TYPE_INVALID);
    } else {
        dbus_message_append_args(reponse, DBUS_TYPE_BOOLEAN, &vrai, DBUS_TYPE_INVALID);
    }
    ++nombre_;
    dbus_connection_send(bouche_, reponse, nullptr);
    dbus_connection_flush(bouche_);
    dbus_message_unref(reponse);
}
