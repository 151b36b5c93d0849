// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <cstdlib>
#include <cstring>

/// Is this the breach that the environment asks for (`VOCALYNE_FAUTE`)?
inline bool Faute(char const* nom) {
    char const* const voulue = std::getenv("VOCALYNE_FAUTE");
    return voulue != nullptr && std::strcmp(voulue, nom) == 0;
}
