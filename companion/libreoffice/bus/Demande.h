// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <functional>
#include <mutex>
#include <utility>

namespace extension {

/// Work asked of the main thread that may be given up until it starts, and never after. One lock
/// decides: a caller who was told "too late" can rely on nothing happening any more, and work that
/// has started is never reported as given up. All operations from any thread.
class Demande {
  public:
    explicit Demande(std::function<void()> travail)
        : travail_(std::move(travail)) {}

    /// Runs the work unless it was given up or ran before; on the calling thread.
    void Execute() {
        std::function<void()> travail;
        {
            std::lock_guard<std::mutex> verrou(mutex_);
            if (etat_ != Etat::EnAttente) {
                return;
            }
            etat_ = Etat::Commencee;
            travail = std::move(travail_);
        }
        travail();
    }

    /// Gives the work up; false when it has started already.
    bool Annule() {
        std::lock_guard<std::mutex> verrou(mutex_);
        if (etat_ != Etat::EnAttente) {
            return false;
        }
        etat_ = Etat::Annulee;
        travail_ = nullptr;
        return true;
    }

  private:
    enum class Etat { EnAttente, Commencee, Annulee };

    std::mutex mutex_;
    Etat etat_ = Etat::EnAttente;
    std::function<void()> travail_;
};

} // namespace extension
