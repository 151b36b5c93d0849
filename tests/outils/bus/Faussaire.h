// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <atomic>
#include <string>
#include <thread>

struct DBusConnection;
struct DBusMessage;

/// Another member of the bus that overhears every call of one method and answers it in the place of
/// whoever was asked, with the call's own number. Stands ready from its construction on.
///
/// It listens as a monitor of the bus, which every bus lets its own user be (dbus-broker knows no
/// other way to overhear), and speaks on a connection of its own.
class Faussaire {
  public:
    /// A text; true; the list of one document, of whichever companion was asked.
    enum class Reponse { Texte, Vrai, Documents };

    Faussaire(std::string const& adresse, std::string methode, Reponse reponse);
    ~Faussaire();
    Faussaire(Faussaire const&) = delete;
    Faussaire& operator=(Faussaire const&) = delete;

    /// Asks the bus for a name, or gives it back; does not wait until it is so. As its owner it
    /// answers in nobody's place.
    void PrendsLeNom(std::string const& service);
    void LaisseLeNom(std::string const& service);

    /// How many forged answers have left.
    int DonneNombre() const noexcept { return nombre_; }

  private:
    void Envoie(char const* methode, std::string const& service);
    void Ecoute();
    void Reponds(DBusMessage* appel);

    DBusConnection* oreille_ = nullptr;
    DBusConnection* bouche_ = nullptr;
    std::string methode_;
    Reponse reponse_;
    std::atomic<int> nombre_{0};
    std::atomic<bool> fini_{false};
    std::thread fil_;
};
