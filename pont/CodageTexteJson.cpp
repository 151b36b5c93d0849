// SPDX-License-Identifier: MPL-2.0
#include "CodageTexteJson.h"

#include "Base64.h"
#include "TamponMemoire.h"

#include <cstring>

namespace {

constexpr std::size_t kCapaciteInitiale = 256;

} // namespace

UniChaine EncodeTexteJson(UniChaine const& texte) {
    auto const octets = texte.VersUtf8();
    sdd::TamponMemoire tampon(kCapaciteInitiale);
    sdd::Base64::Encode(octets.data(), octets.size(), tampon);
    return UniChaine(tampon.DonneOctets(), UniChaine::kCodageUtf8,
                     static_cast<int>(tampon.DonneTaille()));
}

UniChaine DecodeTexteJson(std::string_view valeur) {
    sdd::TamponMemoire tampon(kCapaciteInitiale);
    sdd::Base64::Decode(valeur.data(), valeur.size(), tampon);
    auto const* const octets = tampon.DonneOctets();
    if (tampon.DonneTaille() == 0) {
        return {};
    }
    return UniChaine(octets, UniChaine::kCodageUtf8,
                     static_cast<int>(strnlen(octets, tampon.DonneTaille())));
}
