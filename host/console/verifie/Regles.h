// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <string>
#include <vector>

namespace hote {

/// One sentence of the contract between host and connector, as it is tried.
struct Regle {
    char const* nom;       ///< "zones.longueur": for programs, and to look for
    std::string phrase;    ///< for people, in the display language
    char const* operation; ///< whose comment in the header says it
};

/// All rules, in the order in which they are told. The display language must be set up.
std::vector<Regle> const& DonneRegles();

} // namespace hote
