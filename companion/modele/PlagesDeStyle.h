// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Contrat.h"
#include "Intervalle.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace compagnon {

using contrat::PlageDeStyle;

/// A zone's style runs: in order, never empty, never overlapping, never style 0, and two that touch
/// always differ.
class PlagesDeStyle {
  public:
    /// Adds a run after those already there; merged with the last one where they touch and are
    /// equal. An empty run, style 0, or a run that starts before the last one's end adds nothing
    /// (false for the last).
    bool Ajoute(std::int32_t debut, std::int32_t fin, std::uint16_t style);

    /// Follows an edit of the text: `plage` (inside the text) was replaced by `longueur` units. New
    /// letters take the style of the first one replaced; where nothing was replaced, that of the
    /// letter before, as when typing, or of the letter after at the text's very start.
    void Remplace(Intervalle plage, std::size_t longueur);

    std::vector<PlageDeStyle> const& Donne() const noexcept { return plages_; }
    void Vide() noexcept { plages_.clear(); }

  private:
    std::uint16_t StyleEn(std::int32_t position) const noexcept;

    std::vector<PlageDeStyle> plages_;
};

/// Runs whose languages are numbered for themselves, with 0 in place of the number `principale`, as
/// they travel. In order, merged, as above.
std::vector<PlageDeStyle> RelativesA(std::uint8_t principale,
                                     std::vector<PlageDeStyle> const& plages);

} // namespace compagnon
