// SPDX-License-Identifier: MPL-2.0
#include "TamponMemoire.h"

namespace sdd {

TamponMemoire::TamponMemoire(std::size_t capacite) {
    octets_.reserve(capacite);
}

void TamponMemoire::Ajoute(char const* octets, std::size_t taille) {
    if (taille != 0) {
        octets_.insert(octets_.end(), octets, octets + taille);
    }
}

} // namespace sdd
