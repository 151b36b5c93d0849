// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <atomic>
#include <string>
#include <thread>
#include <vector>

struct DBusConnection;

/// Another member of the bus that guesses: it sends every new connection answers to the first calls
/// that this may make, by their numbers, again and again, whatever was asked. Stands ready from its
/// construction on.
class Arroseur {
  public:
    explicit Arroseur(std::string const& adresse);
    ~Arroseur();
    Arroseur(Arroseur const&) = delete;
    Arroseur& operator=(Arroseur const&) = delete;

    /// How many forged answers have left.
    int DonneNombre() const noexcept { return nombre_; }

  private:
    void Arrose();
    void Ecoute();
    void Envoie(std::string const& cible, unsigned numero);

    DBusConnection* connexion_ = nullptr;
    std::vector<std::string> cibles_;
    std::atomic<int> nombre_{0};
    std::atomic<bool> fini_{false};
    std::thread fil_;
};
