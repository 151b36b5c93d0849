// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <cstdlib>

/// How often a test repeats what goes wrong once in a while: `court` in every check, `longue` in
/// the long one (the build option VOCALYNE_LONG, `./check long`).
inline int Repetitions(int court, int longue) {
    char const* const choix = std::getenv("VOCALYNE_LONG");
    return choix != nullptr && *choix == '1' ? longue : court;
}
