// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "bus/EtatDuBus.h"
#include "menu/lancement/Interroge.h"
#include "menu/lancement/Recherche.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace extension {

/// All that it takes for a host to work on the document in front, as it stands now. A value; any
/// thread, as what tells it in words.
struct Constat {
    std::string service; ///< the service's name on the bus; empty when the extension did not start
    EtatDuBus bus;
    std::size_t documents = 0; ///< how many are served
    std::string idDocument;    ///< whole identifier of the one in front; empty: it is not served
    HoteTrouve hote;
    bool ecran = false; ///< the host has a window then; else it speaks in a terminal
    TerminalTrouve terminal;
    /// What the host said of itself, its plug-in and dictionaries (`vocalyne-hote diagnostic`).
    /// Nothing: it was not asked.
    std::optional<Dite> hoteDit;
};

/// What is missing, and how to get it: a sentence or two each, in the person's language; none when
/// nothing is. UTF-8, like the report.
std::vector<std::string> Manques(Constat const& constat);

/// What "About and diagnosis" says.
std::string Rapport(Constat const& constat);

} // namespace extension
