// SPDX-License-Identifier: MPL-2.0
#include "ParagraphesRetrouves.h"

#include <algorithm>

namespace compagnon {

std::vector<std::optional<std::size_t>>
RetrouveParagraphes(std::vector<std::u16string> const& avant,
                    std::vector<std::u16string> const& maintenant) {
    std::size_t const plusCourt = std::min(avant.size(), maintenant.size());
    std::size_t debut = 0;
    while (debut < plusCourt && avant[debut] == maintenant[debut]) {
        ++debut;
    }
    std::size_t fin = 0;
    while (fin < plusCourt &&
           avant[avant.size() - 1 - fin] == maintenant[maintenant.size() - 1 - fin]) {
        ++fin;
    }
    if (avant.size() == maintenant.size()) {
        fin = std::min(fin, plusCourt - debut);
    } else if (debut + fin > plusCourt) {
        std::size_t const certain = plusCourt - fin;
        fin = plusCourt - debut;
        debut = certain;
    }
    std::vector<std::optional<std::size_t>> origine(maintenant.size());
    for (std::size_t i = 0; i < debut; ++i) {
        origine[i] = i;
    }
    for (std::size_t i = 1; i <= fin; ++i) {
        origine[maintenant.size() - i] = avant.size() - i;
    }
    if (avant.size() == maintenant.size()) {
        std::size_t const milieu = avant.size() - debut - fin;
        for (std::size_t i = debut; i < debut + milieu; ++i) {
            if (milieu == 1 || avant[i] == maintenant[i]) {
                origine[i] = i;
            }
        }
    }
    return origine;
}

} // namespace compagnon
