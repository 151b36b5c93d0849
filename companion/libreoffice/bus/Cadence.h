// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

namespace extension {

/// When the main thread serves calls: in turns of 20 ms together, then it gets a breath of 3 ms, in
/// which the office draws what the person has typed. Without that its own event queue, which goes
/// before drawing, would never be empty. Any thread, where nothing else is said.
class Cadence {
  public:
    using Instant = std::chrono::steady_clock::time_point;
    /// Serves what there is until `fin`; is there more? Main thread; throws nothing.
    using Tour = std::function<bool(Instant fin)>;
    /// Has something run on the main thread soon.
    using Poste = std::function<void(std::function<void()>)>;

    static constexpr std::chrono::milliseconds kTranche{20};
    static constexpr std::chrono::milliseconds kSouffle{3};

    /// This must outlive whatever was posted.
    Cadence(Poste poste, Tour tour);
    Cadence(Cadence const&) = delete;
    Cadence& operator=(Cadence const&) = delete;
    ~Cadence();

    /// There is something to serve.
    void Reveille();
    /// From now on nothing is posted any more.
    void Arrete();

  private:
    void Sers();
    void Souffle();

    Poste poste_;
    Tour tour_;
    std::mutex mutex_;
    std::condition_variable eveil_;
    bool prevu_ = false;   ///< a turn is posted, or will be after a breath
    bool souffle_ = false; ///< a breath is to be taken before it is posted
    bool arrete_ = false;
    std::chrono::steady_clock::duration travaille_{}; ///< since the last breath
    Instant dernierTour_;                             ///< its end
    std::thread fil_;                                 ///< takes the breaths
};

} // namespace extension
