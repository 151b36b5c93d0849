// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <atomic>
#include <string>
#include <thread>

struct DBusConnection;
struct DBusMessage;

/// Another member of the bus that overhears every call of one method and answers it in the place of
/// whoever was asked, with the call's own number. Stands ready from its construction on.
class Faussaire {
  public:
    enum class Reponse { Texte, Vrai };

    Faussaire(std::string const& adresse, std::string methode, Reponse reponse);
    ~Faussaire();
    Faussaire(Faussaire const&) = delete;
    Faussaire& operator=(Faussaire const&) = delete;

    /// How many forged answers have left.
    int DonneNombre() const noexcept { return nombre_; }

  private:
    void Ecoute();
    void Reponds(DBusMessage* appel);

    DBusConnection* connexion_ = nullptr;
    std::string methode_;
    Reponse reponse_;
    std::atomic<int> nombre_{0};
    std::atomic<bool> fini_{false};
    std::thread fil_;
};
