// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Decoupeur.h"
#include "Lexique.h"
#include "Thesaurus.h"

#include <QString>

#include <vector>

namespace hote {

/// What a dictionary of synonyms has under one entry.
struct Article {
    QString entree;
    std::vector<Sens> sens;
};

/// What was found for a place of a text.
struct ArticlesTrouves {
    Mot mot;                       ///< the word: UTF-16 units of the text; empty when there is none
    std::vector<Article> articles; ///< those of the word itself first, then those of its stems
};

/// Looks up what is selected in the text, [debut, fin); without a selection, the word at the caret.
/// A word is looked up as it stands, in lower case, and by its stems; one that stands behind an
/// elision ("l'ami") without it where the whole has no article.
ArticlesTrouves ChercheArticles(QString const& texte, int debut, int fin, Thesaurus& thesaurus,
                                Lexique& lexique);

/// The synonym with the capitals that the word in the text has: the first letter, or all of them.
QString DonneCasse(QString const& synonyme, QString const& mot);

} // namespace hote
