// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <string>
#include <vector>

namespace extension {

/// Starts a program (absolute path first) on its own: in a session of its own, so that what ends
/// the office or interrupts its terminal leaves it alone, with nobody here who must wait for it,
/// and with no file of the office open but standard error. Returns once it runs. What failed, in
/// the system's words, or empty. Any thread.
std::string Lance(std::vector<std::string> const& ligne,
                  std::vector<std::string> const& environnement);

} // namespace extension
