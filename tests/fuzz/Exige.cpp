// SPDX-License-Identifier: MPL-2.0
#include "Sonde.h"

#include <cstdio>
#include <cstdlib>

void Exige(bool tenu, char const* promesse) {
    if (tenu) {
        return;
    }
    std::fprintf(stderr, "broken promise: %s\n", promesse);
    std::abort();
}
