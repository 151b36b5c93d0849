// SPDX-License-Identifier: MPL-2.0
#include "ChaineJson.h"

namespace compagnon {

void AjouteChaineJson(std::string& json, std::string_view utf8) {
    static constexpr char kChiffres[] = "0123456789abcdef";
    json += '"';
    for (char const octet : utf8) {
        auto const valeur = static_cast<unsigned char>(octet);
        if (octet == '"' || octet == '\\') {
            json += '\\';
            json += octet;
        } else if (valeur < 0x20) {
            json += "\\u00";
            json += kChiffres[valeur >> 4U];
            json += kChiffres[valeur & 0xFU];
        } else {
            json += octet;
        }
    }
    json += '"';
}

} // namespace compagnon
