// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <boost/context/fiber.hpp>

#include <exception>
#include <functional>

namespace extension {

/// Work that can be left in its midst and gone on with later: it has a stack of its own, on the
/// same thread. So a walk over a document, with all that is nested in it, reads as any other code
/// does. Nothing that must not outlive a moment (a lock, something of a portion) may stand on that
/// stack where it pauses, and no exception may be under way there.
class TravailAPauses {
  public:
    using Pause = std::function<void()>;

    /// `travail` is given what it is to call where it may be left; it starts with `Avance`.
    explicit TravailAPauses(std::function<void(Pause const&)> travail);
    TravailAPauses(TravailAPauses const&) = delete;
    TravailAPauses& operator=(TravailAPauses const&) = delete;
    /// Left for good before its end, what stands on its stack is taken apart as by an exception.
    ~TravailAPauses() = default;

    /// Goes on until the next pause, or the end: true then. Throws what the work has thrown, which
    /// is its end too. The thread that made it.
    bool Avance();

  private:
    std::exception_ptr erreur_;
    boost::context::fiber fibre_;
};

} // namespace extension
