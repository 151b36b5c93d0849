// SPDX-License-Identifier: MPL-2.0
#include "TravailAPauses.h"

#include <boost/context/stack_context.hpp>

#include <sys/mman.h>
#include <unistd.h>

#include <memory>
#include <new>
#include <utility>

namespace extension {

namespace {

using boost::context::fiber;

/// Stacks with a page below them that nobody may touch: one that is too small ends the process
/// where it is left, and writes over nothing. Memory is taken as it is used. (The library's own
/// allocator cannot be linked into a shared object on Debian.)
class Piles {
  public:
    // The size of a main thread's: the office's own calls go as deep here as there.
    static constexpr std::size_t kTaille = std::size_t{8} << 20;

    boost::context::stack_context allocate() {
        void* const bas = mmap(nullptr, kTaille, PROT_READ | PROT_WRITE,
                               MAP_PRIVATE | MAP_ANONYMOUS | MAP_STACK | MAP_NORESERVE, -1, 0);
        if (bas == MAP_FAILED) {
            throw std::bad_alloc();
        }
        if (mprotect(bas, static_cast<std::size_t>(sysconf(_SC_PAGESIZE)), PROT_NONE) != 0) {
            munmap(bas, kTaille);
            throw std::bad_alloc();
        }
        boost::context::stack_context pile;
        pile.size = kTaille;
        pile.sp = static_cast<char*>(bas) + kTaille;
        return pile;
    }
    void deallocate(boost::context::stack_context& pile) noexcept {
        munmap(static_cast<char*>(pile.sp) - pile.size, pile.size);
    }
};

} // namespace

TravailAPauses::TravailAPauses(std::function<void(Pause const&)> travail)
    : fibre_(std::allocator_arg, Piles(),
             [this, travail = std::move(travail)](fiber&& appelant) mutable {
                 try {
                     travail([&] { appelant = std::move(appelant).resume(); });
                 } catch (boost::context::detail::forced_unwind const&) {
                     throw; // left for good
                 } catch (...) {
                     erreur_ = std::current_exception();
                 }
                 return std::move(appelant);
             }) {}

bool TravailAPauses::Avance() {
    if (fibre_) {
        fibre_ = std::move(fibre_).resume();
    }
    if (erreur_) {
        std::rethrow_exception(std::exchange(erreur_, nullptr));
    }
    return !fibre_;
}

} // namespace extension
