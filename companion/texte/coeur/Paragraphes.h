// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "modele/TexteSuivi.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace compagnon {

/// How a paragraph ends in its file. A carriage return alone (old files) ends one too.
enum class FinDeLigne { Aucune, LineFeed, RetourChariot, Les2 };

struct Paragraphe {
    TextePartage texte; ///< without its line end; never null
    FinDeLigne fin = FinDeLigne::Aucune;
};

/// A text file in pieces, from which it can be put together again byte for byte.
struct TexteDecoupe {
    bool marque = false;                 ///< began with a UTF-8 byte order mark
    std::vector<Paragraphe> paragraphes; ///< at least one: an empty file is one empty paragraph
};

std::string_view Octets(FinDeLigne fin) noexcept;

/// Number of paragraphs that `Decoupe` would make; costs no memory.
std::size_t CompteParagraphes(std::string_view octets) noexcept;

/// `octets` must be UTF-8 (see `PremierOctetNonUtf8`).
TexteDecoupe Decoupe(std::string_view octets);

/// The file's bytes.
std::string Recompose(TexteDecoupe const& texte);

/// Does the text hold what would end a paragraph?
bool ContientFinDeLigne(std::u16string_view texte) noexcept;

} // namespace compagnon
