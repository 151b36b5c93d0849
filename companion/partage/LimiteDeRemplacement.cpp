// SPDX-License-Identifier: MPL-2.0
#include "LimiteDeRemplacement.h"

#include "ErreurDuService.h"
#include "modele/Utf.h"

namespace compagnon {

namespace {
constexpr std::size_t kOctetsParUniteMax = 3; // a pair of units takes four
} // namespace

void VerifieRemplacement(std::u16string_view texte) {
    if (texte.size() > contrat::kUnitesRemplacementMax) {
        throw ErreurDuService(contrat::Erreur::TropGrand);
    }
}

std::u16string RemplacementDepuisUtf8(std::string_view utf8) {
    if (utf8.size() > contrat::kUnitesRemplacementMax * kOctetsParUniteMax) {
        return std::u16string(contrat::kUnitesRemplacementMax + 1, u' ');
    }
    return Utf8VersUtf16(utf8).value_or(std::u16string());
}

} // namespace compagnon
