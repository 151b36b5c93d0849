// SPDX-License-Identifier: MPL-2.0
#include "StyleDeLettres.h"

#include "PlagesDeStyle.h"

#include <com/sun/star/awt/FontSlant.hpp>
#include <com/sun/star/awt/FontStrikeout.hpp>
#include <com/sun/star/awt/FontUnderline.hpp>
#include <com/sun/star/awt/FontWeight.hpp>
#include <com/sun/star/lang/Locale.hpp>

using namespace com::sun::star;
using rtl::OUString;

namespace bureau {

uno::Sequence<OUString> NomsDesProprietesDeLettres() {
    static char const* const noms[kNombreDeProprietes] = {
        "CharEscapement", "CharHidden",    "CharLocale", "CharPosture",
        "CharStrikeout",  "CharUnderline", "CharWeight", "TextPortionType"};
    uno::Sequence<OUString> proprietes(kNombreDeProprietes);
    for (int i = 0; i < kNombreDeProprietes; ++i) {
        proprietes[i] = OUString::createFromAscii(noms[i]);
    }
    return proprietes;
}

std::uint16_t StyleDeLettres(uno::Any const* valeurs) {
    std::uint16_t style = 0;
    float graisse = 0;
    if ((valeurs[kGraisse] >>= graisse) && graisse >= awt::FontWeight::SEMIBOLD) {
        style |= compagnon::kStyleGras;
    }
    awt::FontSlant inclinaison = awt::FontSlant_NONE;
    if ((valeurs[kInclinaison] >>= inclinaison) && inclinaison != awt::FontSlant_NONE &&
        inclinaison != awt::FontSlant_DONTKNOW) {
        style |= compagnon::kStyleItalique;
    }
    sal_Int16 nombre = 0;
    if ((valeurs[kSoulignement] >>= nombre) && nombre != awt::FontUnderline::NONE &&
        nombre != awt::FontUnderline::DONTKNOW) {
        style |= compagnon::kStyleSouligne;
    }
    if ((valeurs[kBarre] >>= nombre) && nombre != awt::FontStrikeout::NONE &&
        nombre != awt::FontStrikeout::DONTKNOW) {
        style |= compagnon::kStyleBarre;
    }
    if ((valeurs[kExposant] >>= nombre) && nombre != 0) {
        style |= nombre > 0 ? compagnon::kStyleExposant : compagnon::kStyleIndice;
    }
    lang::Locale langue;
    if ((valeurs[kLangue] >>= langue) && langue.Language == "zxx") {
        style |= compagnon::kStyleSansCorrection;
    }
    return style;
}

} // namespace bureau
