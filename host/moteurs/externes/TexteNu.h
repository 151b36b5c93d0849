// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "moteurs/Remarque.h"

#include <vector>

namespace hote {

/// A line of a paragraph as an engine outside can take it, and the way back to the paragraph: no
/// fillers, no control characters, no half surrogate pairs, and whatever is not to be judged in
/// the engine's languages stands as it is. All positions in UTF-16 units.
struct TexteNu {
    QString texte;
    std::vector<EtendueDeLangue> langues;
    std::vector<int> places; ///< of each unit in the paragraph, and of the end

    /// The place in the paragraph of a place in `texte`; -1 for none.
    int Retrouve(int position) const {
        return position < 0 || position >= static_cast<int>(places.size())
                   ? -1
                   : places[static_cast<std::size_t>(position)];
    }
};

/// The lines of a paragraph, in order; long ones are parted behind a sentence.
std::vector<TexteNu> FaisTextesNus(ParagrapheAExaminer const& paragraphe);

} // namespace hote
