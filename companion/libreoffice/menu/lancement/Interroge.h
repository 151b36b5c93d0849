// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <string>
#include <vector>

namespace extension {

/// What a program said before it ended.
struct Dite {
    bool finie = false; ///< false: it could not be started, or did not end in time
    int code = -1;      ///< its exit code; -1 where a signal ended it
    std::string texte;  ///< its standard output; why, where it could not be started
};

/// Runs a program (absolute path first) and waits for it, `delaiMs` milliseconds at most: it is
/// killed then. No file of the office is open in it but standard error. Any thread, which it
/// blocks.
Dite Interroge(std::vector<std::string> const& ligne, std::vector<std::string> const& environnement,
               int delaiMs);

} // namespace extension
