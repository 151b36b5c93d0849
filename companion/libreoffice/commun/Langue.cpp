// SPDX-License-Identifier: MPL-2.0
#include "Langue.h"

#include "ChainesUno.h"

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

} // namespace extension
