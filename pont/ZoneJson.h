// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Contrat.h"
#include "InterfaceZoneDeTexte.h"
#include "UniChaine.h"

#include <vector>

// One zone, or one attributed string, to and from a single-zone document: a JSON object with "Nom"
// (where there is a name), "Texte", and "InfosStyle" (where there is a run). Written compactly,
// keys in byte order, with one line feed at the end.

UniChaine ZoneVersJson(std::vector<contrat::PlageDeStyle> const& styles, UniChaine const& texte,
                       UniChaine const& nom);

/// Without a name; each run as the string stores it, in its order.
UniChaine ChaineAttribueeVersJson(TexteAvecAttributs const& texte);

/// The attributed string of a single-zone document. An empty document gives an empty string and
/// leaves `nom` as it was; otherwise `nom` takes the document's name, also where reading the runs
/// then throws (Json::RuntimeError, at an integer that is none).
TexteAvecAttributs JsonVersChaineAttribuee(UniChaine const& json, UniChaine& nom);
