// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "lecture/FormatPropre.h"
#include "lecture/LecteurPortions.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace extension {

/// One thing to do in a paragraph of the drawing engine: take letters out, put letters in, or give
/// a field other words. Positions are the engine's (a field takes one), as they stand when its turn
/// comes.
struct Geste {
    std::size_t position = 0;
    std::size_t retire = 0;   ///< how many positions go
    std::u16string ajout;     ///< what comes there; of a field, all of its words
    FormatPropre format = {}; ///< to give to what comes; none where the engine gives the right one
    std::optional<std::size_t> champ = {}; ///< which of the paragraph's fields it is
};

/// All that a correction does in a paragraph, and what takes that back to the letter and the
/// format.
struct Gestes {
    std::size_t rang = 0; ///< the paragraph's place among those of its text
    std::u16string avant; ///< all of its letters before; a field that is not read counts as one
    std::u16string apres; ///< and after
    std::vector<Geste> aller;
    std::vector<Geste> retour;
};

/// All letters of a paragraph, soft hyphens among them; a field that is not read counts as one.
std::u16string LettresDe(compagnon::PlanDePortions const& plan);

/// The gestures for a plan's steps. Nothing where what they take out could not come back in its
/// format. Main thread; may throw UNO exceptions.
std::optional<Gestes> GestesPour(ParagrapheLu const& lu,
                                 std::vector<compagnon::EtapeEdition> const& etapes);

/// Those for one step.
Geste GesteDe(compagnon::PlanDePortions const& plan, compagnon::EtapeEdition const& etape);

} // namespace extension
