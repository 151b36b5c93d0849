// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <string>
#include <vector>

namespace hote {

/// The names that a loaded library defines for others (`dlopen`'s handle), those left out that
/// linkers add of themselves. Empty when its tables cannot be read.
std::vector<std::string> DonneSymbolesExportes(void* bibliotheque);

} // namespace hote
