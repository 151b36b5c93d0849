// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "EnTeteJson.h"
#include "langue/Articles.h"

#include <string>

namespace hote {

/// A search for `mot` as one line of JSON, UTF-8; the form is in host/README.md.
std::string DonneArticlesJson(EnTeteJson const& enTete, QString const& mot,
                              ArticlesTrouves const& recherche);

} // namespace hote
