// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "langue/Articles.h"

#include <string>

namespace hote {

/// What is told about a search besides what was found.
struct EnTeteArticles {
    QString id;
    QString titre;
    QString mot;
    Langue langue;
    bool langueTrouvee;
};

/// A search as one line of JSON; the form is in host/README.md.
std::string DonneArticlesJson(EnTeteArticles const& enTete, Recherche const& recherche);

} // namespace hote
