// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Lexique.h"

#include <cstdint>
#include <optional>

namespace hote {

/// What a style run says of the language of its letters.
struct LangueDuStyle {
    bool estDite = false;         ///< false: the document's main one
    std::optional<Langue> langue; ///< nothing: one that the host does not proof

    friend bool operator==(LangueDuStyle const& a, LangueDuStyle const& b) noexcept {
        return a.estDite == b.estDite && a.langue == b.langue;
    }
};

/// By the high byte of the style (protocol/README.md).
LangueDuStyle LisLangueDuStyle(std::uint16_t style);

} // namespace hote
