// SPDX-License-Identifier: MPL-2.0
#include "Hasard.h"

#include <random>

namespace extension {

std::string HasardHexadecimal() {
    static constexpr char kChiffres[] = "0123456789abcdef";
    std::random_device source;
    std::string chiffres;
    for (int i = 0; i < 16; ++i) {
        chiffres.push_back(kChiffres[source() % 16]);
    }
    return chiffres;
}

} // namespace extension
