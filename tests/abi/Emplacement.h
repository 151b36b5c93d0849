// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <cstddef>

/// Calls the virtual function in slot `rang` of the object's table, as a host does that knows the
/// order and nothing else. The two entries of the destructor are slots 0 and 1, so the operation
/// that the contract numbers n is in slot n + 1. On Linux a member function takes its object as the
/// first argument (behind the address of a result returned in memory), as a plain function would.
template <class Resultat, class... Arguments>
Resultat AppelleEmplacement(void* objet, std::size_t rang, Arguments... arguments) {
    using Fonction = Resultat (*)(void*, Arguments...);
    auto const* const table = *static_cast<void* const* const*>(objet);
    return reinterpret_cast<Fonction>(table[rang])(objet, arguments...);
}
