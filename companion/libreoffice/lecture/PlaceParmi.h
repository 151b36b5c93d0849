// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "modele/PlanDePortions.h"

#include <com/sun/star/text/XText.hpp>

#include <vector>

namespace extension {

/// Where a position of `texte` stands among the ranges of a paragraph's portions; what lies outside
/// of them counts as the nearest end. Main thread.
compagnon::PlaceDansPortion
PlaceParmi(std::vector<css::uno::Reference<css::text::XTextRange>> const& etendues,
           css::uno::Reference<css::text::XText> const& texte,
           css::uno::Reference<css::text::XTextRange> const& position);

} // namespace extension
