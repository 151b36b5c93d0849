// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QtGlobal>

#include <condition_variable>
#include <map>
#include <mutex>
#include <optional>
#include <set>
#include <utility>

namespace hote {

/// What waits for a worker: numbers, the lowest priority first, among equals the oldest. Any
/// thread.
class FileDeTravaux {
  public:
    void Ajoute(quint64 numero, int priorite) {
        std::lock_guard<std::mutex> const verrou(mutex_);
        priorites_[numero] = priorite;
        attente_.insert({priorite, numero});
        arrivee_.notify_one();
    }

    void Retire(quint64 numero) {
        std::lock_guard<std::mutex> const verrou(mutex_);
        auto const trouve = priorites_.find(numero);
        if (trouve != priorites_.end()) {
            attente_.erase({trouve->second, numero});
            priorites_.erase(trouve);
        }
    }

    /// Of no effect on what no longer waits.
    void ChangePriorite(quint64 numero, int priorite) {
        std::lock_guard<std::mutex> const verrou(mutex_);
        auto const trouve = priorites_.find(numero);
        if (trouve != priorites_.end()) {
            attente_.erase({trouve->second, numero});
            trouve->second = priorite;
            attente_.insert({priorite, numero});
        }
    }

    /// Waits for the next; nothing once the queue is closed.
    std::optional<quint64> Prends() {
        std::unique_lock<std::mutex> verrou(mutex_);
        arrivee_.wait(verrou, [this] { return fermee_ || !attente_.empty(); });
        if (fermee_) {
            return std::nullopt;
        }
        quint64 const numero = attente_.begin()->second;
        attente_.erase(attente_.begin());
        priorites_.erase(numero);
        return numero;
    }

    /// Sends all who wait away.
    void Ferme() {
        std::lock_guard<std::mutex> const verrou(mutex_);
        fermee_ = true;
        arrivee_.notify_all();
    }

  private:
    std::mutex mutex_;
    std::condition_variable arrivee_;
    std::set<std::pair<int, quint64>> attente_;
    std::map<quint64, int> priorites_;
    bool fermee_ = false;
};

} // namespace hote
