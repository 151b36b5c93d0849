// SPDX-License-Identifier: MPL-2.0
#include "Frontieres.h"

#include <algorithm>
#include <array>

namespace compagnon {

namespace {

constexpr char16_t kLiantSansChasse = 0x200D; // zero-width joiner

struct Bloc {
    char32_t premier;
    char32_t dernier;
};

// Characters that attach to what stands before them, in ascending order.
constexpr std::array<Bloc, 21> kBlocsAttaches{{
    {0x0300, 0x036F},   // combining diacritical marks
    {0x0483, 0x0489},   // Cyrillic
    {0x0591, 0x05BD},   // Hebrew points
    {0x05BF, 0x05BF},   //
    {0x05C1, 0x05C2},   //
    {0x05C4, 0x05C5},   //
    {0x05C7, 0x05C7},   //
    {0x0610, 0x061A},   // Arabic signs
    {0x064B, 0x065F},   // Arabic vowels
    {0x0670, 0x0670},   //
    {0x06D6, 0x06DC},   //
    {0x06DF, 0x06E4},   //
    {0x1AB0, 0x1AFF},   // combining diacritical marks extended
    {0x1DC0, 0x1DFF},   // combining diacritical marks supplement
    {0x200D, 0x200D},   // zero-width joiner
    {0x20D0, 0x20FF},   // combining marks for symbols
    {0x3099, 0x309A},   // kana voicing
    {0xFE00, 0xFE0F},   // variation selectors
    {0xFE20, 0xFE2F},   // combining half marks
    {0x1F3FB, 0x1F3FF}, // emoji skin tones
    {0xE0100, 0xE01EF}, // variation selectors supplement
}};

char32_t LisPoint(std::u16string_view texte, std::size_t position) noexcept {
    char16_t const unite = texte[position];
    if (EstSurrogatHaut(unite) && position + 1 < texte.size() &&
        EstSurrogatBas(texte[position + 1])) {
        return 0x10000 + ((char32_t{unite} - 0xD800) << 10) +
               (char32_t{texte[position + 1]} - 0xDC00);
    }
    return unite;
}

bool EstAttache(char32_t point) noexcept {
    auto const* const bloc =
        std::lower_bound(kBlocsAttaches.begin(), kBlocsAttaches.end(), point,
                         [](Bloc const& candidat, char32_t p) { return candidat.dernier < p; });
    return bloc != kBlocsAttaches.end() && point >= bloc->premier;
}

} // namespace

bool CoupePaire(std::u16string_view texte, std::size_t position) noexcept {
    return position > 0 && position < texte.size() && EstSurrogatHaut(texte[position - 1]) &&
           EstSurrogatBas(texte[position]);
}

bool CoupeCaractere(std::u16string_view texte, std::size_t position) noexcept {
    if (position == 0 || position >= texte.size()) {
        return false;
    }
    return CoupePaire(texte, position) || texte[position - 1] == kLiantSansChasse ||
           EstAttache(LisPoint(texte, position));
}

} // namespace compagnon
