// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace compagnon {

/// What one portion of an office's paragraph is to a corrector.
enum class GenrePortion : std::uint8_t {
    Texte,     ///< letters that are read and may be changed, all of one format
    Champ,     ///< letters that a field holds: read, and changed by giving the field others
    Fixe,      ///< letters that are read and stay as they are: no change of them is safe
    Exclue,    ///< letters that stay in the document unread: a tracked deletion, hidden text
    Substitut, ///< one thing that stands as one unit: a field, a note's anchor, an image
    Ancre,     ///< one thing that stands as nothing and must survive: a comment's anchor
    Attache,   ///< the same, but without a step of its own: where a frame or shape is anchored
    Repere,    ///< a bookmark without extent: a deletion that starts on it would take it along
    Limite,    ///< where something that spans letters starts or ends: a bookmark, a ruby, a link
};

struct Portion {
    GenrePortion genre = GenrePortion::Texte;
    std::u16string
        source; ///< Texte, Champ, Fixe: the letters in the document; Substitut: the unit shown
    std::uint16_t style = 0;

    /// Does it take no step in the document?
    bool EstSansEtendue() const noexcept {
        return genre == GenrePortion::Repere || genre == GenrePortion::Limite ||
               genre == GenrePortion::Attache || (genre == GenrePortion::Texte && source.empty());
    }
};

/// A step of an edit inside one Texte or Champ portion. Steps are carried out in order; positions
/// are UTF-16 units of the portion's source as it stands when the step's turn comes, where a
/// deletion that is only recorded (tracked changes) may leave its letters in place.
struct EtapeEdition {
    std::size_t portion = 0;
    std::size_t debut = 0;
    std::size_t fin = 0;   ///< equal to `debut` when letters are put in
    std::u16string ajout;  ///< empty when letters are taken out
    std::u16string source; ///< the portion's letters before this step, to count code points in

    bool EstInsertion() const noexcept { return debut == fin; }
    /// The portion's letters after this step: what a field is given.
    std::u16string DonneApres() const {
        return std::u16string(source).replace(debut, fin - debut, ajout);
    }
};

} // namespace compagnon
