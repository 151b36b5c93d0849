// SPDX-License-Identifier: MPL-2.0
#include "Repartition.h"

#include "Frontieres.h"

#include <algorithm>
#include <cstdint>

namespace compagnon {

namespace {

/// Cells of the table below which the exact way costs well under a millisecond or two.
constexpr std::size_t kCasesMax = 1'000'000;

/// For each unit of the old text, and for its end, how much of the new text stands before it.
std::vector<std::size_t> Aligne(std::u16string_view ancien, std::u16string_view nouveau) {
    std::size_t const largeur = nouveau.size() + 1;
    std::vector<std::uint32_t> communs((ancien.size() + 1) * largeur, 0);
    auto const en = [&](std::size_t i, std::size_t j) -> std::uint32_t& {
        return communs[i * largeur + j];
    };
    for (std::size_t i = ancien.size(); i-- > 0;) {
        for (std::size_t j = nouveau.size(); j-- > 0;) {
            // A space counts for more than a letter, so that words face words.
            std::uint32_t const poids = ancien[i] == u' ' ? 3 : 2;
            en(i, j) = ancien[i] == nouveau[j] ? en(i + 1, j + 1) + poids
                                               : std::max(en(i + 1, j), en(i, j + 1));
        }
    }
    std::vector<std::size_t> avant(ancien.size() + 1, nouveau.size());
    std::size_t j = 0;
    for (std::size_t i = 0; i < ancien.size(); ++i) {
        // Letters put in between two others go with the one before them, as when typing.
        while (j < nouveau.size() && ancien[i] != nouveau[j] && en(i, j + 1) > en(i + 1, j)) {
            ++j;
        }
        avant[i] = j;
        // A letter that has no counterpart takes one that is left over in its place.
        bool const garde = j < nouveau.size() && ancien[i] == nouveau[j];
        bool const remplace = j < nouveau.size() && en(i + 1, j + 1) == en(i, j);
        if (garde || remplace) {
            ++j;
        }
    }
    return avant;
}

} // namespace

std::vector<std::u16string_view> RepartisTexte(std::u16string_view ancien,
                                               std::vector<std::size_t> const& tailles,
                                               std::u16string_view nouveau) {
    bool const exact = (ancien.size() + 1) * (nouveau.size() + 1) <= kCasesMax;
    std::vector<std::size_t> const avant =
        exact && tailles.size() > 1 ? Aligne(ancien, nouveau) : std::vector<std::size_t>();
    std::vector<std::u16string_view> parts;
    std::size_t fait = 0;
    std::size_t borne = 0;
    for (std::size_t i = 0; i < tailles.size(); ++i) {
        borne += tailles[i];
        std::size_t coupe = nouveau.size();
        if (i + 1 < tailles.size()) {
            coupe = std::min(avant.empty() ? borne : avant[borne], nouveau.size());
            while (coupe > fait && CoupeCaractere(nouveau, coupe)) {
                --coupe;
            }
            coupe = std::max(coupe, fait);
        }
        parts.push_back(nouveau.substr(fait, coupe - fait));
        fait = coupe;
    }
    return parts;
}

} // namespace compagnon
