// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QString>

namespace hote {

/// One character of a UTF-16 text, and the units that it takes (1 or 2).
struct CodePoint {
    char32_t code;
    int taille;
};

/// The character at `position`, which lies below `limite`, itself at most the text's length. Half
/// of a pair standing alone, or cut off by `limite`, is a character of one unit with its own code.
inline CodePoint LisCodePoint(QString const& texte, int position, int limite) {
    QChar const unite = texte.at(position);
    if (unite.isHighSurrogate() && position + 1 < limite &&
        texte.at(position + 1).isLowSurrogate()) {
        return {QChar::surrogateToUcs4(unite, texte.at(position + 1)), 2};
    }
    return {unite.unicode(), 1};
}

} // namespace hote
