// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <string>

namespace hote {

/// The few lines shown when the command line is wrong, and the whole help; both end in a line feed.
std::string DonneUsage();
std::string DonneAide();

} // namespace hote
