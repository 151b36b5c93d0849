// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Contrat.h"
#include "UniChaine.h"

#include <vector>

/// One zone as a zone-list document tells it, its texts decoded.
struct ZoneRecue {
    UniChaine nom;
    UniChaine texte;
    int debutSel = 0;
    int finSel = 0;
    std::vector<contrat::PlageDeStyle> styles;
};
