// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Chantier.h"

#include <array>
#include <string>

namespace hote {

/// The trials. Each tells what it finds to the reporter of its work place, and may well not return:
/// it runs in a process of its own. Main thread; a Qt application object exists.
void EprouveExports(Chantier const& chantier);
void EprouveAgent(Chantier const& chantier);
void EprouveOrdre(Chantier const& chantier);
void EprouveZones(Chantier const& chantier);
void EprouveCorrections(Chantier const& chantier);
void EprouveSelection(Chantier const& chantier);
void EprouveLiberation(Chantier const& chantier);
void EprouveMemoire(Chantier const& chantier);

struct Epreuve {
    char const* nom;
    void (*eprouve)(Chantier const&);
};

/// In the order in which they run.
constexpr std::array<Epreuve, 8> kEpreuves = {{{"exports", EprouveExports},
                                               {"agent", EprouveAgent},
                                               {"ordre", EprouveOrdre},
                                               {"zones", EprouveZones},
                                               {"corrections", EprouveCorrections},
                                               {"selection", EprouveSelection},
                                               {"liberation", EprouveLiberation},
                                               {"memoire", EprouveMemoire}}};

} // namespace hote
