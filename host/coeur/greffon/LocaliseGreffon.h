// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <string>

namespace hote {

/// The plug-in to load: `demande` when it is not empty (the command line), else the environment's
/// VOCALYNE_GREFFON when it is set, else the first that exists of the places where an installation
/// beside the program puts it. Paths are bytes as the system has them. Throws ErreurHote
/// (kSortieGreffon) naming the places looked at when nothing stands there. Main thread.
std::string LocaliseGreffon(std::string const& demande);

} // namespace hote
