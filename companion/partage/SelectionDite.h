// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "modele/Intervalle.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace compagnon {

/// A selection as a caller knows it: the zone's key, its text, and the range in it.
struct SelectionDite {
    std::string zone;
    std::u16string texte;
    Intervalle plage;

    friend bool operator==(SelectionDite const& a, SelectionDite const& b) noexcept {
        return a.zone == b.zone && a.plage == b.plage && a.texte == b.texte;
    }
};

/// The range of `texte` with its bounds shifted. Throws `SelectionImpossible` where one would leave
/// the text or stand in the middle of a surrogate pair, or where they would cross.
Intervalle DecaleBornes(Intervalle plage, std::int32_t deltaDebut, std::int32_t deltaFin,
                        std::u16string_view texte);

} // namespace compagnon
