// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "modele/PlanDePortions.h"

#include <cstdint>
#include <random>
#include <string>
#include <vector>

/// A paragraph as an office keeps it, letter by letter: what a plan is made of, and what its steps
/// are carried out on. Knows nothing of how plans work.
class ModeleDeParagraphe {
  public:
    struct Lettre {
        char16_t unite;
        std::uint32_t identite; ///< 0: put in by a correction
        bool supprimee = false; ///< a recorded deletion
    };
    struct Portion {
        compagnon::GenrePortion genre;
        std::vector<Lettre> lettres;
        std::uint16_t style;
    };

    static ModeleDeParagraphe AuHasard(std::mt19937& hasard);

    /// `suivi`: deletions are recorded, and leave the letters in place.
    compagnon::PlanDePortions Plan() const;

    /// Carries a step out; why it must not be, or nothing.
    std::string Execute(compagnon::EtapeEdition const& etape, bool suivi);

    std::vector<Portion> portions;

  private:
    /// Does a bookmark without extent stand right where the portion starts?
    bool EstPrecedeeDUnSignet(std::size_t portion) const;
};
