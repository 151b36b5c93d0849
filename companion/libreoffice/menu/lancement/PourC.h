// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <string>
#include <vector>

namespace extension {

/// The words as C wants them, with a null behind; lives no longer than `mots`.
inline std::vector<char*> PourC(std::vector<std::string> const& mots) {
    std::vector<char*> pointeurs;
    pointeurs.reserve(mots.size() + 1);
    for (std::string const& mot : mots) {
        pointeurs.push_back(const_cast<char*>(mot.c_str())); // GLib only reads it
    }
    pointeurs.push_back(nullptr);
    return pointeurs;
}

} // namespace extension
