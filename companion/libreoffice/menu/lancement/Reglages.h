// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <string>

namespace extension {

/// What the environment says about where programs are. Empty members: nothing was said.
struct Reglages {
    std::string hote;     ///< VOCALYNE_HOTE: the host to start, and no other
    std::string terminal; ///< VOCALYNE_TERMINAL: a terminal emulator, with arguments as for a shell
    std::string chemins;  ///< PATH
    std::string maison;   ///< HOME
};

/// Any thread, while none changes the environment.
Reglages ReglagesDeLEnvironnement();

} // namespace extension
