// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace compagnon {

/// What stands for a unit that cannot travel. A D-Bus string ends at U+0000 and UTF-8 has no lone
/// surrogates; each such unit becomes this filler, one for one, so that every offset stays right.
inline constexpr char16_t kRemplissage = 0x0007;

/// Holds neither U+0000 nor a lone surrogate.
bool EstTransportable(std::u16string_view texte) noexcept;

/// The text as it travels: same length, each unit that cannot leave replaced by `kRemplissage`.
std::u16string RendsTransportable(std::u16string_view texte);

/// The same for a text that is a reply by itself, outside of any Base64: Qt's readers take a U+FEFF
/// at a string's very start for a byte order mark and drop it, so it becomes `kRemplissage` there.
std::u16string RendsEnvoyable(std::u16string_view texte);

/// Appends the text as UTF-8 to `sortie`, made transportable on the way.
void AjouteUtf8(std::u16string_view texte, std::string& sortie);
std::string Utf16VersUtf8(std::u16string_view texte);

/// Bytes that `AjouteUtf8` writes for the text, at most.
std::size_t OctetsEnUtf8(std::u16string_view texte) noexcept;

/// Strict reading: no overlong form, no surrogate, nothing past U+10FFFF. Nothing on bad input.
std::optional<std::u16string> Utf8VersUtf16(std::string_view octets);

/// Offset in bytes of the first sequence that is not UTF-8; `npos` when all is.
std::size_t PremierOctetNonUtf8(std::string_view octets) noexcept;

} // namespace compagnon
