// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <mutex>

namespace extension {

/// What was asked of the main thread: it may be given up whenever that is not at it. One lock
/// decides: a caller who was told "too late" can rely on nothing happening any more, and work that
/// goes on is never reported as given up. All operations from any thread.
class Demande {
  public:
    /// The main thread takes it up, or goes on with it; false when it was given up, or when that
    /// thread is at it already, farther up in its calls.
    bool Commence() { return Passe(Etat::EnAttente, Etat::EnCours); }
    /// The main thread leaves it for a while.
    void Suspends() { Passe(Etat::EnCours, Etat::EnAttente); }
    /// Gives it up; false when the main thread is at it, and where it was given up before.
    bool Annule() { return Passe(Etat::EnAttente, Etat::Annulee); }
    bool EstAnnulee() const {
        std::lock_guard<std::mutex> const verrou(mutex_);
        return etat_ == Etat::Annulee;
    }

  private:
    enum class Etat { EnAttente, EnCours, Annulee };

    bool Passe(Etat depuis, Etat vers) {
        std::lock_guard<std::mutex> const verrou(mutex_);
        if (etat_ != depuis) {
            return false;
        }
        etat_ = vers;
        return true;
    }

    mutable std::mutex mutex_;
    Etat etat_ = Etat::EnAttente;
};

} // namespace extension
