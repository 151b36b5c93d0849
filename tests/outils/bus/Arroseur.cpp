// SPDX-License-Identifier: MPL-2.0
#include "Arroseur.h"

#include <dbus/dbus.h>

#include <stdexcept>

namespace {

/// How many of its first calls are guessed at, and how many of the newest connections are aimed at.
constexpr unsigned kNumeros = 12;
constexpr std::size_t kCibles = 2;

} // namespace

Arroseur::Arroseur(std::string const& adresse) {
    dbus_threads_init_default();
    connexion_ = dbus_connection_open_private(adresse.c_str(), nullptr);
    if (connexion_ == nullptr || dbus_bus_register(connexion_, nullptr) == 0) {
        throw std::runtime_error("no bus to send to");
    }
    dbus_connection_set_exit_on_disconnect(connexion_, 0);
    DBusError erreur = DBUS_ERROR_INIT;
    dbus_bus_add_match(connexion_, "type='signal',member='NameOwnerChanged'", &erreur);
    if (dbus_error_is_set(&erreur) != 0) {
        throw std::runtime_error(erreur.message);
    }
    fil_ = std::thread([this] { Arrose(); });
}

Arroseur::~Arroseur() {
    fini_ = true;
    fil_.join();
    dbus_connection_close(connexion_);
    dbus_connection_unref(connexion_);
}

void Arroseur::Arrose() {
    constexpr int kTourMs = 1;
    while (!fini_ && dbus_connection_read_write(connexion_, cibles_.empty() ? kTourMs : 0) != 0) {
        Ecoute();
        for (auto const& cible : cibles_) {
            for (unsigned numero = 1; numero <= kNumeros; ++numero) {
                Envoie(cible, numero);
            }
        }
        dbus_connection_flush(connexion_);
    }
}

void Arroseur::Ecoute() {
    while (DBusMessage* const message = dbus_connection_pop_message(connexion_)) {
        char const* nom = nullptr;
        char const* avant = nullptr;
        char const* apres = nullptr;
        if (dbus_message_is_signal(message, DBUS_INTERFACE_DBUS, "NameOwnerChanged") != 0 &&
            dbus_message_get_args(message, nullptr, DBUS_TYPE_STRING, &nom, DBUS_TYPE_STRING,
                                  &avant, DBUS_TYPE_STRING, &apres, DBUS_TYPE_INVALID) != 0 &&
            *nom == ':' && *apres != '\0') {
            cibles_.emplace_back(nom);
            if (cibles_.size() > kCibles) {
                cibles_.erase(cibles_.begin());
            }
        }
        dbus_message_unref(message);
    }
}

void Arroseur::Envoie(std::string const& cible, unsigned numero) {
    auto* const reponse = dbus_message_new(DBUS_MESSAGE_TYPE_METHOD_RETURN);
    char const* const texte = "forged";
    dbus_message_set_reply_serial(reponse, numero);
    dbus_message_set_destination(reponse, cible.c_str());
    dbus_message_append_args(reponse, DBUS_TYPE_STRING, &texte, DBUS_TYPE_INVALID);
    dbus_connection_send(connexion_, reponse, nullptr);
    dbus_message_unref(reponse);
    ++nombre_;
}
