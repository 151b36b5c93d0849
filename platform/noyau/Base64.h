// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "ExportNoyau.h"
#include "TamponMemoire.h"

#include <cstddef>

namespace sdd {

/// Base64 with the standard alphabet, padding and no line breaks (RFC 4648, section 4).
/// Stateless; any thread. Lengths in bytes.
class VOCALYNE_NOYAU Base64 {
  public:
    /// Appends the encoding of `taille` bytes to `sortie`.
    static void Encode(char const* octets, std::size_t taille, TamponMemoire& sortie);

    /// Appends the decoding of `taille` characters to `sortie`. Characters outside the alphabet
    /// are passed over, and an incomplete last group gives the bytes that it holds: decoding never
    /// fails.
    static void Decode(char const* caracteres, std::size_t taille, TamponMemoire& sortie);
};

} // namespace sdd
