// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Processus.h"
#include "outils/DossierTemporaire.h"

#include <memory>
#include <optional>
#include <string>

/// A session bus of the test's own, with the stock session bus's limits and nothing to activate.
/// Its address does not tell which bus it is: another may come in its place, as a login's.
/// DBUS_SESSION_BUS_ADDRESS points to it while it lives, and is put back then. Make it before
/// anything in the process looks for the session bus.
///
/// It is dbus-daemon, or the program that VOCALYNE_DBUS_DAEMON names and that is started alike
/// (`courtier`).
class BusPrive {
  public:
    BusPrive();
    ~BusPrive();
    BusPrive(BusPrive const&) = delete;
    BusPrive& operator=(BusPrive const&) = delete;

    /// As in DBUS_SESSION_BUS_ADDRESS.
    std::string const& Adresse() const noexcept { return adresse_; }
    pid_t Pid() const noexcept { return demon_->Pid(); }
    /// The bus ends properly, or at once; its address leads nowhere from then on. Comes back when
    /// it is gone.
    void Arrete();
    void Tue();
    /// Another bus at the same address, where the one before has ended.
    void Recommence();
    /// Stopped, it keeps all connections and answers nothing; then it goes on.
    void Fige();
    void Degele();

  private:
    void Commence();

    DossierTemporaire dossier_;
    std::unique_ptr<Processus> demon_;
    std::string adresse_;
    std::optional<std::string> adresseAvant_;
};
