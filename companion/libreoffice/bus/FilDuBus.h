// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Appels.h"
#include "EtatDuBus.h"
#include "Methodes.h"

#include <gio/gio.h>

#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <thread>

namespace extension {

/// The extension's own connection to the session bus, on a thread and a GLib context of its own:
/// the office's belong to its window system. Quiet without a bus, and back with it.
class FilDuBus {
  public:
    FilDuBus(std::string const& instance, std::shared_ptr<Appels> appels,
             std::shared_ptr<ClesVivantes const> vivantes, Delais delais);
    FilDuBus(FilDuBus const&) = delete;
    FilDuBus& operator=(FilDuBus const&) = delete;
    /// Stops the thread and waits for it: it never waits for the office. Any other thread.
    ~FilDuBus();

    /// How things stand. Any thread.
    EtatDuBus DonneEtat() const;
    /// The service's name on the bus, owned or not. Any thread.
    std::string const& DonneNom() const noexcept { return nom_; }

  private:
    void Tourne();
    void Connecte();
    void Deconnecte();
    void DemandeLeNom();
    void NomPris();
    void Reessaie();
    void SuisLesDeparts();
    void Part(std::string const& qui);
    void MetsEtat(EtatDuBus etat);

    std::string const nom_;
    std::string const chemin_;
    std::shared_ptr<Appels> appels_;
    std::shared_ptr<ClesVivantes const> vivantes_;
    Delais const delais_;

    GMainContext* contexte_;
    GMainLoop* boucle_;
    GCancellable* arret_;

    // Bus thread only.
    GDBusConnection* connexion_ = nullptr;
    std::unique_ptr<Methodes> methodes_;
    guint garde_ = 0;                 // watches the name that another holds
    unsigned pause_ = 0;              // ms before the next attempt
    guint departs_ = 0;               // the subscription to whoever leaves the bus
    std::set<std::string> appelants_; // on the bus, and known to the service

    mutable std::mutex mutex_;
    EtatDuBus etat_;
    std::thread fil_;
};

} // namespace extension
