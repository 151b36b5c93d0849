// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Contrat.h"
#include "UniChaine.h"

#include <functional>
#include <string>
#include <vector>

/// One zone as a zone-list document tells it, its texts decoded.
struct ZoneRecue {
    UniChaine nom;
    UniChaine texte;
    int debutSel = 0;
    int finSel = 0;
    std::vector<contrat::PlageDeStyle> styles;
};

/// Reads a zone-list document (UTF-8 bytes) and hands out its zones in order, each once it is
/// whole.
///
/// Nothing is handed out for an empty document, one that does not parse, one whose root is no
/// object, or whose "Zones" is neither an array nor null. Throws Json::RuntimeError at the first
/// integer member that is none, after the zones before it were handed out; and what `recois`
/// throws.
void LisListeDeZones(std::string const& octets, std::function<void(ZoneRecue&&)> const& recois);
