// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <cstddef>
#include <string_view>

namespace compagnon {

inline bool EstSurrogatHaut(char16_t unite) noexcept {
    return unite >= 0xD800 && unite <= 0xDBFF;
}
inline bool EstSurrogatBas(char16_t unite) noexcept {
    return unite >= 0xDC00 && unite <= 0xDFFF;
}

/// Does `position` (UTF-16 units, at most the size) stand in the middle of a surrogate pair?
bool CoupePaire(std::u16string_view texte, std::size_t position) noexcept;

/// Would a cut at `position` part what a reader sees as one character: a surrogate pair, a letter
/// and its combining mark or variation selector, or two sides of a zero-width joiner? Knows the
/// combining blocks that Latin, Greek, Cyrillic, Hebrew and Arabic letters, kana, symbols and emoji
/// take; elsewhere it looks at surrogate pairs alone. Both ends of a text are never a cut.
bool CoupeCaractere(std::u16string_view texte, std::size_t position) noexcept;

} // namespace compagnon
