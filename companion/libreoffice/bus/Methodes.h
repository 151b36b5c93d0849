// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Appels.h"

#include <chrono>

namespace extension {

/// How long calls wait for a busy main thread before they are given up.
struct Delais {
    std::chrono::milliseconds ordinaire{20'000};       // callers wait 25 s by default
    std::chrono::milliseconds initialisation{230'000}; // theirs: 240 s
};

/// The two interfaces' skeletons on a connection.
class Methodes {
  public:
    /// `cible` gets the calls and must outlive this. Bus thread, here and for all operations.
    Methodes(Appels& cible, std::shared_ptr<ClesVivantes const> vivantes, Delais delais,
             std::function<void(char const*)> surAppelant);
    Methodes(Methodes const&) = delete;
    Methodes& operator=(Methodes const&) = delete;
    ~Methodes();

    bool Publie(GDBusConnection* connexion, char const* chemin, GError** erreur);
    void Retire();

    // For the skeletons' signal handlers.
    Appels& Cible() noexcept { return cible_; }
    Delais const& DonneDelais() const noexcept { return delais_; }
    ClesVivantes const& DonneVivantes() const noexcept { return *vivantes_; }
    /// A call from this connection came in.
    void Note(char const* appelant) const { surAppelant_(appelant); }

  private:
    Appels& cible_;
    std::shared_ptr<ClesVivantes const> vivantes_;
    Delais delais_;
    std::function<void(char const*)> surAppelant_;
    GDBusInterfaceSkeleton* texteur_;
    GDBusInterfaceSkeleton* documents_;
};

} // namespace extension
