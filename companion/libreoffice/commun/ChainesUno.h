// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <rtl/ustring.hxx>

#include <cstddef>
#include <string>
#include <string_view>

namespace extension {

/// A view of the office's string, valid as long as it lives. Any thread, as all of these.
inline std::u16string_view Vue(rtl::OUString const& chaine) noexcept {
    // The SDK declares the office's char16_t units as 16-bit integers; they are written and read in
    // different binaries, where no compiler sees both types.
    return {reinterpret_cast<char16_t const*>(chaine.getStr()),
            static_cast<std::size_t>(chaine.getLength())};
}

inline rtl::OUString EnUno(std::u16string_view texte) {
    return rtl::OUString(reinterpret_cast<sal_Unicode const*>(texte.data()),
                         static_cast<sal_Int32>(texte.size()));
}

/// UTF-8 that may travel on the bus: see `compagnon::AjouteUtf8`.
std::string EnUtf8(rtl::OUString const& chaine);

/// Text that came from the bus, which lets through nothing but UTF-8.
std::u16string DepuisUtf8(char const* octets);

} // namespace extension
