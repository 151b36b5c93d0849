// SPDX-License-Identifier: MPL-2.0
#include "Base64.h"
#include "Sonde.h"

#include <string>

namespace {

std::string Encode(std::string const& octets) {
    sdd::TamponMemoire sortie;
    sdd::Base64::Encode(octets.data(), octets.size(), sortie);
    return {sortie.DonneOctets(), sortie.DonneTaille()};
}

std::string Decode(std::string const& caracteres) {
    sdd::TamponMemoire sortie;
    sdd::Base64::Decode(caracteres.data(), caracteres.size(), sortie);
    return {sortie.DonneOctets(), sortie.DonneTaille()};
}

} // namespace

int LLVMFuzzerTestOneInput(std::uint8_t const* octets, std::size_t taille) {
    std::string const entree(octets, octets + taille);
    Exige(Decode(Encode(entree)) == entree, "any bytes come back");
    Exige(Encode(entree).size() == (taille + 2) / 3 * 4, "encoding has its length");
    auto const decode = Decode(entree);
    Exige(decode.size() <= taille, "decoding never grows");
    Exige(Decode(Encode(decode)) == decode, "what was decoded comes back");
    return 0;
}
