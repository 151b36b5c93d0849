// SPDX-License-Identifier: MPL-2.0
#include "LangueDuStyle.h"

#include "Langues.h"

#include <string_view>

namespace hote {

LangueDuStyle LisLangueDuStyle(std::uint16_t style) {
    std::uint8_t const numero = contrat::DonneNumeroDuStyle(style);
    if (numero == 0) {
        return {};
    }
    std::string_view const etiquette = contrat::DonneEtiquetteDeLangue(numero);
    std::string_view const langue = etiquette.substr(0, etiquette.find('-'));
    if (langue == "fr") {
        return {true, Langue::Francais};
    }
    return {true, langue == "en" ? std::make_optional(Langue::Anglais) : std::nullopt};
}

} // namespace hote
