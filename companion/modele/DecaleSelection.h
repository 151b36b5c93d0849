// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Intervalle.h"

#include <cstddef>

namespace compagnon {

/// Where a selection stands after `editee` (a range of the same text) was replaced by `longueur`
/// units. A selection clear of the edit keeps its letters; one that overlaps it grows over the
/// whole replacement; text put in at a selection's border stays outside of it. A caret (an empty
/// selection) at an insertion, or inside what was replaced, ends behind the new letters.
Intervalle DecaleSelection(Intervalle selection, Intervalle editee, std::size_t longueur) noexcept;

} // namespace compagnon
