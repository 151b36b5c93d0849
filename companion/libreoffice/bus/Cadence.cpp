// SPDX-License-Identifier: MPL-2.0
#include "Cadence.h"

#include <utility>

namespace extension {

using Horloge = std::chrono::steady_clock;

Cadence::Cadence(Poste poste, Tour tour)
    : poste_(std::move(poste))
    , tour_(std::move(tour))
    , fil_([this] { Souffle(); }) {}

Cadence::~Cadence() {
    Arrete();
}

void Cadence::Arrete() {
    {
        std::lock_guard<std::mutex> const verrou(mutex_);
        if (arrete_) {
            return;
        }
        arrete_ = true;
    }
    eveil_.notify_all();
    fil_.join();
}

void Cadence::Reveille() {
    {
        std::lock_guard<std::mutex> const verrou(mutex_);
        if (prevu_ || arrete_) {
            return;
        }
        prevu_ = true;
        if (Horloge::now() - dernierTour_ >= kSouffle) {
            travaille_ = {}; // it has had its breath
        }
        souffle_ = travaille_ >= kTranche;
        if (souffle_) {
            eveil_.notify_all();
            return;
        }
    }
    poste_([this] { Sers(); });
}

void Cadence::Sers() {
    Instant const debut = Horloge::now();
    Instant fin;
    {
        std::lock_guard<std::mutex> const verrou(mutex_);
        prevu_ = false;
        fin = debut + kTranche - travaille_;
    }
    bool const reste = tour_(fin);
    {
        std::lock_guard<std::mutex> const verrou(mutex_);
        dernierTour_ = Horloge::now();
        travaille_ += dernierTour_ - debut;
    }
    if (reste) {
        Reveille();
    }
}

void Cadence::Souffle() {
    std::unique_lock<std::mutex> verrou(mutex_);
    for (;;) {
        // Not by `wait`, which is new in GCC 12's library: offices on systems with an older one
        // would not load the extension, and say nothing.
        constexpr std::chrono::hours kLongtemps(1);
        while (!eveil_.wait_for(verrou, kLongtemps, [this] { return souffle_ || arrete_; })) {
        }
        if (eveil_.wait_for(verrou, kSouffle, [this] { return arrete_; })) {
            return;
        }
        souffle_ = false;
        travaille_ = {};
        verrou.unlock();
        poste_([this] { Sers(); });
        verrou.lock();
    }
}

} // namespace extension
