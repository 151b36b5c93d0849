// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <string>

namespace hote {

/// Standard output, written at once and whole. A failure is remembered, and nothing is written
/// after it: the work whose story is being told goes on all the same.
class Sortie {
  public:
    /// Writes to `descripteur`, which it does not own.
    explicit Sortie(int descripteur)
        : descripteur_(descripteur) {}

    /// Blocks until everything is written. False when this or an earlier writing failed.
    bool Ecris(std::string const& octets);

    bool EstRompue() const noexcept { return erreur_ != 0; }

    /// Throws ErreurHote (kSortieInterne) when writing failed, but for a reader that went away:
    /// that one knows.
    void Verifie() const;

  private:
    int descripteur_;
    int erreur_ = 0;
};

/// Keeps standard output for what the program writes itself, and answers its new descriptor: what a
/// plug-in or a library prints goes to standard error from then on, where it breaks nothing. Throws
/// ErreurHote (kSortieInterne).
int ReserveSortie();

/// Opens /dev/null in the place of standard streams that the caller left closed (a socket would
/// take such a number and receive what is written for people), and has a reader that goes away
/// give a write error instead of ending the process. First thing in a program.
void PrepareFluxStandard();

} // namespace hote
