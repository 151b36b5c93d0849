// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Couleurs.h"
#include "langue/Articles.h"

#include <string>

namespace hote {

/// What was found, for a person: a line a meaning, ending in a line feed. Synonyms are numbered
/// from 1 through all of it when `numerote`.
std::string DonneArticlesTexte(ArticlesTrouves const& recherche, Couleurs const& couleurs,
                               bool numerote);

/// The synonym of that number, or null.
Synonyme const* TrouveSynonyme(ArticlesTrouves const& recherche, int numero);

/// How many synonyms there are.
int CompteSynonymes(ArticlesTrouves const& recherche);

} // namespace hote
