// SPDX-License-Identifier: MPL-2.0
#include "EcritureDocuments.h"

#include "modele/Utf.h"

#include <utility>

namespace compagnon {

namespace {

void AjouteChaine(std::string& json, std::string_view octets) {
    static constexpr char kChiffres[] = "0123456789abcdef";
    json += '"';
    for (char const octet : octets) {
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

} // namespace

void EcritureDocuments::Ajoute(std::string_view identifiant, std::u16string_view titre,
                               std::u16string_view chemin) {
    json_ += json_.size() > 1 ? ",{\"id\":" : "{\"id\":";
    AjouteChaine(json_, identifiant);
    json_ += ",\"titre\":";
    AjouteChaine(json_, Utf16VersUtf8(titre));
    json_ += ",\"chemin\":";
    AjouteChaine(json_, Utf16VersUtf8(chemin));
    json_ += '}';
}

std::string EcritureDocuments::Termine() {
    json_ += ']';
    return std::move(json_);
}

} // namespace compagnon
