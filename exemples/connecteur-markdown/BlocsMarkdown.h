// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QString>

#include <vector>

/// What a Markdown text is made of, for a reader of its words. Positions are UTF-16 code units of
/// the text, ends exclusive. Pure functions; any thread.
namespace markdown {

struct PlageMarkdown {
    int debut;
    int fin;
};

/// A paragraph, a heading, an item of a list, a row of a table, or a stretch that is no text (code,
/// HTML, the file's header). Each block has the blank lines behind it, so that together they are
/// the whole text.
struct BlocMarkdown {
    int debut;
    int fin;
    bool estTexte;
};

/// The blocks, in order, without a gap; none for the empty text.
std::vector<BlocMarkdown> Decoupe(QString const& texte);

/// What of the text is not to be read as words: blocks that are no text, and in the others code,
/// addresses and tags. In order, without overlap.
std::vector<PlageMarkdown> TrouveExclusions(QString const& texte,
                                            std::vector<BlocMarkdown> const& blocs);

} // namespace markdown
