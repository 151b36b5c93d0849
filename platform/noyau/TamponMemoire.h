// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "ExportNoyau.h"

#include <cstddef>
#include <vector>

namespace sdd {

/// A growing buffer of bytes. One object on one thread at a time; throws only std::bad_alloc.
class VOCALYNE_NOYAU TamponMemoire {
  public:
    /// Empty, with room for `capacite` bytes before the first growth.
    explicit TamponMemoire(std::size_t capacite = 256);

    /// Appends `taille` bytes.
    void Ajoute(char const* octets, std::size_t taille);

    /// The bytes, valid until the buffer changes; not ended by a NUL. Null may be returned when
    /// the buffer is empty.
    char const* DonneOctets() const noexcept { return octets_.data(); }
    /// In bytes.
    std::size_t DonneTaille() const noexcept { return octets_.size(); }

  private:
    std::vector<char> octets_;
};

} // namespace sdd
