// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <cstdint>

/// One style run of a zone, in UTF-16 code units of its text. Nothing is validated: a run whose end
/// stood before its start has a length that wrapped round.
struct PlageStyle {
    std::uint32_t debut;
    std::uint32_t longueur;
    std::uint32_t style; ///< only the low 16 bits are used

    std::uint32_t Fin() const noexcept { return debut + longueur; }
};
