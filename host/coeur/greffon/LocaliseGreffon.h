// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <string>
#include <vector>

namespace hote {

/// Where the plug-in may be, best first: `demande` alone when it is not empty (the command line),
/// else the environment's VOCALYNE_GREFFON alone when it is set, else the places where an
/// installation beside the program puts it. Paths are bytes as the system has them.
std::vector<std::string> DonneCheminsGreffon(std::string const& demande);

/// The plug-in to load: the first of those that exists. Throws ErreurHote (kSortieGreffon) naming
/// the places looked at when none does.
std::string LocaliseGreffon(std::string const& demande);

} // namespace hote
