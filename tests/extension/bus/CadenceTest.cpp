// SPDX-License-Identifier: MPL-2.0
#include "bus/Cadence.h"

#include <gtest/gtest.h>

#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace {

using extension::Cadence;
using Horloge = std::chrono::steady_clock;

/// A main thread: the test's own, which runs what was posted when it is told to.
class FilDEssai {
  public:
    void Poste(std::function<void()> travail) {
        {
            std::lock_guard<std::mutex> const verrou(mutex_);
            travaux_.push_back(std::move(travail));
        }
        arrive_.notify_all();
    }
    /// Waits for the next piece of work, and runs it.
    void Sers() {
        std::unique_lock<std::mutex> verrou(mutex_);
        arrive_.wait(verrou, [this] { return !travaux_.empty(); });
        std::function<void()> const travail = std::move(travaux_.front());
        travaux_.pop_front();
        verrou.unlock();
        travail();
    }
    std::size_t Nombre() {
        std::lock_guard<std::mutex> const verrou(mutex_);
        return travaux_.size();
    }

  private:
    std::mutex mutex_;
    std::condition_variable arrive_;
    std::deque<std::function<void()>> travaux_;
};

class TurnsOfTheMainThread : public testing::Test {
  protected:
    Cadence::Poste Poste() {
        return [this](std::function<void()> travail) { fil_.Poste(std::move(travail)); };
    }
    static void TravailleJusqua(Cadence::Instant fin) {
        while (Horloge::now() < fin) {
            std::this_thread::yield();
        }
    }

    FilDEssai fil_;
};

} // namespace

TEST_F(TurnsOfTheMainThread, ArePostedAtOnceAndOnceForAllThatComes) {
    int tours = 0;
    Cadence cadence(Poste(), [&](Cadence::Instant) {
        ++tours;
        return false;
    });
    cadence.Reveille();
    cadence.Reveille();
    EXPECT_EQ(fil_.Nombre(), 1U);
    fil_.Sers();
    EXPECT_EQ(tours, 1);
    cadence.Reveille();
    EXPECT_EQ(fil_.Nombre(), 1U);
}

TEST_F(TurnsOfTheMainThread, GoOnWhileThereIsMoreWithABreathWhenTheSliceIsUsedUp) {
    std::vector<Horloge::time_point> debuts;
    std::vector<Horloge::time_point> fins;
    Cadence cadence(Poste(), [&](Cadence::Instant fin) {
        debuts.push_back(Horloge::now());
        EXPECT_LE(fin, debuts.back() + Cadence::kTranche);
        TravailleJusqua(fin);
        fins.push_back(Horloge::now());
        return debuts.size() < 3;
    });
    cadence.Reveille();
    for (int i = 0; i < 3; ++i) {
        fil_.Sers();
    }
    for (std::size_t i = 1; i < debuts.size(); ++i) {
        EXPECT_GE(debuts[i] - fins[i - 1], Cadence::kSouffle);
    }
    EXPECT_EQ(fil_.Nombre(), 0U);
}

TEST_F(TurnsOfTheMainThread, MayBeTakenWithinOneAnother) {
    int tours = 0;
    Cadence* elle = nullptr;
    Cadence cadence(Poste(), [&](Cadence::Instant) {
        if (++tours == 1) { // an event loop within a call
            elle->Reveille();
            fil_.Sers();
        }
        return false;
    });
    elle = &cadence;
    cadence.Reveille();
    fil_.Sers();
    EXPECT_EQ(tours, 2);
}

TEST_F(TurnsOfTheMainThread, EndWithTheirOwner) {
    Cadence cadence(Poste(), [&](Cadence::Instant fin) {
        TravailleJusqua(fin);
        return true;
    });
    cadence.Reveille();
    fil_.Sers(); // a breath is being taken
    cadence.Arrete();
    std::size_t const postes = fil_.Nombre();
    cadence.Reveille();
    EXPECT_EQ(fil_.Nombre(), postes);
}
