// SPDX-License-Identifier: MPL-2.0
#include "Langue.h"

#include "ChainesUno.h"
#include "Langues.h"

using namespace com::sun::star;

namespace extension {

std::string EtiquetteDeLangue(lang::Locale const& langue) {
    if (langue.Language == "qlt") { // the office's own sign that the tag stands whole elsewhere
        return EnUtf8(langue.Variant);
    }
    if (langue.Language.isEmpty() || langue.Language == "zxx") {
        return {};
    }
    return EnUtf8(langue.Country.isEmpty() ? langue.Language
                                           : langue.Language + "-" + langue.Country);
}

std::uint8_t NumeroDeLangue(lang::Locale const& langue) {
    struct Connue {
        lang::Locale langue;
        std::uint8_t numero = 0;
    };
    static auto* const derniere = new Connue; // never let go of: strings of the office are in it
    if (langue.Language != derniere->langue.Language ||
        langue.Country != derniere->langue.Country || langue.Variant != derniere->langue.Variant) {
        *derniere = {langue, contrat::DonneNumeroDeLangue(EtiquetteDeLangue(langue))};
    }
    return derniere->numero;
}

} // namespace extension
