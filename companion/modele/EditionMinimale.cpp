// SPDX-License-Identifier: MPL-2.0
#include "EditionMinimale.h"

#include "Frontieres.h"

#include <algorithm>

namespace compagnon {

std::size_t LongueurDebutCommun(std::u16string_view a, std::u16string_view b) noexcept {
    auto const bornes = std::mismatch(a.begin(), a.end(), b.begin(), b.end());
    return static_cast<std::size_t>(bornes.first - a.begin());
}

std::size_t LongueurFinCommune(std::u16string_view a, std::u16string_view b) noexcept {
    auto const bornes = std::mismatch(a.rbegin(), a.rend(), b.rbegin(), b.rend());
    return static_cast<std::size_t>(bornes.first - a.rbegin());
}

EditionMinimale EditionMinimale::Entre(std::u16string_view ancien,
                                       std::u16string_view nouveau) noexcept {
    std::size_t debut = LongueurDebutCommun(ancien, nouveau);
    if (debut == ancien.size() && debut == nouveau.size()) {
        return {debut, 0, {}};
    }
    while (debut > 0 && (CoupeCaractere(ancien, debut) || CoupeCaractere(nouveau, debut))) {
        --debut;
    }
    std::size_t fin = LongueurFinCommune(ancien.substr(debut), nouveau.substr(debut));
    while (fin > 0 && (CoupeCaractere(ancien, ancien.size() - fin) ||
                       CoupeCaractere(nouveau, nouveau.size() - fin))) {
        --fin;
    }
    return {debut, ancien.size() - fin - debut,
            nouveau.substr(debut, nouveau.size() - fin - debut)};
}

} // namespace compagnon
