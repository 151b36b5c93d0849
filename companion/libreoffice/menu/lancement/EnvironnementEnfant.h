// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <string>
#include <vector>

namespace extension {

/// The environment ("NAME=value") for a program that is no part of the office, from the office's
/// own: without what makes the office find its libraries, its interpreter and its start-up, and
/// with the bus that the extension is on (unless `bus` is empty). Any thread.
std::vector<std::string> EnvironnementEnfant(std::vector<std::string> const& herite,
                                             std::string const& bus);

/// This process's environment. Any thread, while none changes it.
std::vector<std::string> EnvironnementHerite();

} // namespace extension
