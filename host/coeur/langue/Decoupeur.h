// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QString>

#include <vector>

namespace hote {

/// A word in a text: [debut, fin) in UTF-16 code units of that text.
struct Mot {
    int debut;
    int fin;

    friend bool operator==(Mot const& a, Mot const& b) noexcept {
        return a.debut == b.debut && a.fin == b.fin;
    }
};

/// The words of a French or English text that a spelling dictionary can judge, in order.
///
/// A word is made of letters with their combining marks; apostrophes and hyphens between letters
/// belong to it, and so does a soft hyphen inside it. Left out: addresses of the web, of mail and
/// of files, mentions and tags, anything with a digit, an underscore or a letter of another script
/// than Latin, single letters, Roman numerals, and words too long to be one. Fillers (U+0007,
/// U+0011), other controls and lone surrogates part words. A word never begins or ends inside a
/// surrogate pair, nor between a letter and its marks.
std::vector<Mot> DecoupeEnMots(QString const& texte);

/// What a dictionary is asked for a piece of text: composed (NFC), without soft hyphens, with the
/// typewriter's apostrophe and hyphen.
QString DonneForme(QString const& brut);

/// Is the unit an apostrophe or a hyphen of any of the shapes that join the parts of a word?
bool EstApostrophe(QChar unite) noexcept;
bool EstTraitDUnion(QChar unite) noexcept;

} // namespace hote
