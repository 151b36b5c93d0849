// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <string>
#include <vector>

namespace extension {

/// The command line that runs `hote` with `arguments` in a terminal (see `TerminalTrouve`), shows
/// `invite` (UTF-8) at its end, and keeps the terminal open until a line is typed. Arguments stay
/// arguments: no shell reads them. Any thread.
std::vector<std::string> LigneDeTerminal(std::vector<std::string> const& terminal,
                                         std::string const& invite, std::string const& hote,
                                         std::vector<std::string> const& arguments);

} // namespace extension
