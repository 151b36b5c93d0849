// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "lecture/FormatPropre.h"
#include "lecture/LecteurPortions.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace extension {

/// One thing to do in a paragraph of the drawing engine: put letters in the place of others (of
/// none, or none), or give a field other words. Positions are the engine's (a field takes one), as
/// they stand when its turn comes.
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

/// The gestures that do what a plan's steps say, and what takes them back. Main thread, as below;
/// may throw UNO exceptions.
Gestes GestesPour(ParagrapheLu const& lu, std::vector<compagnon::EtapeEdition> const& etapes);

/// Can what the steps take out come back in its format?
bool PeuventRevenir(ParagrapheLu const& lu, std::vector<compagnon::EtapeEdition> const& etapes);

} // namespace extension
