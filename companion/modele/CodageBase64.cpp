// SPDX-License-Identifier: MPL-2.0
#include "CodageBase64.h"

#include <cstdint>

namespace compagnon {

void AjouteBase64(std::string_view octets, std::string& sortie) {
    static constexpr char kAlphabet[] =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    auto const octet = [&](std::size_t i) {
        return static_cast<std::uint32_t>(static_cast<unsigned char>(octets[i]));
    };
    std::size_t const depart = sortie.size();
    sortie.resize(depart + (octets.size() + 2) / 3 * 4);
    char* ecrit = sortie.data() + depart;
    std::size_t i = 0;
    for (; octets.size() - i >= 3; i += 3) {
        std::uint32_t const bloc = octet(i) << 16 | octet(i + 1) << 8 | octet(i + 2);
        *ecrit++ = kAlphabet[bloc >> 18];
        *ecrit++ = kAlphabet[bloc >> 12 & 63];
        *ecrit++ = kAlphabet[bloc >> 6 & 63];
        *ecrit++ = kAlphabet[bloc & 63];
    }
    std::size_t const reste = octets.size() - i;
    if (reste > 0) {
        std::uint32_t const bloc = octet(i) << 16 | (reste == 2 ? octet(i + 1) << 8 : 0);
        *ecrit++ = kAlphabet[bloc >> 18];
        *ecrit++ = kAlphabet[bloc >> 12 & 63];
        *ecrit++ = reste == 2 ? kAlphabet[bloc >> 6 & 63] : '=';
        *ecrit++ = '=';
    }
}

} // namespace compagnon
