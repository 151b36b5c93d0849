// SPDX-License-Identifier: MPL-2.0
#include "ChainesUno.h"

#include "modele/Utf.h"

namespace extension {

std::string EnUtf8(rtl::OUString const& chaine) {
    return compagnon::Utf16VersUtf8(Vue(chaine));
}

std::u16string DepuisUtf8(char const* octets) {
    return compagnon::Utf8VersUtf16(octets).value_or(std::u16string());
}

} // namespace extension
