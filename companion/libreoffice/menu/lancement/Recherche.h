// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Reglages.h"

#include <string>
#include <vector>

namespace extension {

/// The host program, or why there is none.
struct HoteTrouve {
    std::string chemin; ///< absolute; empty when it was not found
    std::string voulu;  ///< what VOCALYNE_HOTE names, where that cannot be run
    std::vector<std::string>
        dossiers; ///< the folders searched, in order; empty when `voulu` is not
};

/// VOCALYNE_HOTE, else `vocalyne-hote` in `installation` (the folder of programs that the build
/// installs to), on PATH, in the usual folders. Folders that are not absolute are passed over. Any
/// thread, as the next one.
HoteTrouve ChercheHote(Reglages const& reglages, std::string const& installation);

/// A terminal emulator, or why there is none.
struct TerminalTrouve {
    /// Absolute program, its own arguments, and the option after which it takes the command to run,
    /// a word an argument. Empty when none was found.
    std::vector<std::string> commande;
    std::string voulu; ///< what VOCALYNE_TERMINAL says, where that cannot be run
};

/// VOCALYNE_TERMINAL, else the system's choice (`x-terminal-emulator`), else one of those that are
/// known, on PATH and in the usual folders.
TerminalTrouve ChercheTerminal(Reglages const& reglages);

} // namespace extension
