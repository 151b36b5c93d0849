// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "modele/TexteSuivi.h"

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <unordered_map>

namespace extension {

/// What one connection on the bus was told, and what it therefore believes. Main thread only.
struct Session {
    /// Document part of the identifier it last named.
    std::string document;

    /// By zone key.
    std::unordered_map<std::string, compagnon::TexteSuivi> croyances;

    /// Bytes of the zone document it was last given: the next one is most often about as long.
    std::size_t tailleZones = 0;

    /// The selection as its tools know it: they replace that one and no other.
    struct Contexte {
        std::string zone;
        std::u16string texte;
        compagnon::Intervalle selection;
    };
    std::optional<Contexte> contexte;
};

/// By the unique name of the connection.
using Sessions = std::map<std::string, Session>;

} // namespace extension
