// SPDX-License-Identifier: MPL-2.0
#include "StyleDeLettres.h"

#include "Ecritures.h"
#include "Langues.h"
#include "commun/ChainesUno.h"
#include "commun/Langue.h"

#include <com/sun/star/awt/FontSlant.hpp>
#include <com/sun/star/awt/FontStrikeout.hpp>
#include <com/sun/star/awt/FontUnderline.hpp>
#include <com/sun/star/awt/FontWeight.hpp>
#include <com/sun/star/beans/XMultiPropertySet.hpp>
#include <com/sun/star/lang/Locale.hpp>

#include <algorithm>
#include <array>
#include <optional>

using namespace com::sun::star;
using rtl::OUString;

namespace extension {

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
        style |= contrat::kStyleGras;
    }
    awt::FontSlant inclinaison = awt::FontSlant_NONE;
    if ((valeurs[kInclinaison] >>= inclinaison) && inclinaison != awt::FontSlant_NONE &&
        inclinaison != awt::FontSlant_DONTKNOW) {
        style |= contrat::kStyleItalique;
    }
    sal_Int16 nombre = 0;
    if ((valeurs[kSoulignement] >>= nombre) && nombre != awt::FontUnderline::NONE &&
        nombre != awt::FontUnderline::DONTKNOW) {
        style |= contrat::kStyleSouligne;
    }
    if ((valeurs[kBarre] >>= nombre) && nombre != awt::FontStrikeout::NONE &&
        nombre != awt::FontStrikeout::DONTKNOW) {
        style |= contrat::kStyleBarre;
    }
    if ((valeurs[kExposant] >>= nombre) && nombre != 0) {
        style |= nombre > 0 ? contrat::kStyleExposant : contrat::kStyleIndice;
    }
    lang::Locale langue;
    if (valeurs[kLangue] >>= langue) {
        bool const aucune = langue.Language == "zxx";
        style |= aucune ? std::uint16_t{contrat::kStyleSansCorrection}
                        : contrat::DonneStyleDeLangue(NumeroDeLangue(langue));
    }
    return style;
}

namespace {

/// The style for another script, whose properties bear `suffixe`.
std::uint16_t StyleDEcriture(uno::Reference<beans::XMultiPropertySet> const& source,
                             uno::Any const* latines, char const* suffixe) {
    OUString const fin = OUString::createFromAscii(suffixe);
    uno::Sequence<OUString> noms(3);
    noms[0] = "CharLocale" + fin;
    noms[1] = "CharPosture" + fin;
    noms[2] = "CharWeight" + fin;
    uno::Sequence<uno::Any> const propres = source->getPropertyValues(noms);
    std::array<uno::Any, kNombreDeProprietes> valeurs;
    std::copy_n(latines, valeurs.size(), valeurs.begin());
    valeurs[kLangue] = propres[0];
    valeurs[kInclinaison] = propres[1];
    valeurs[kGraisse] = propres[2];
    return StyleDeLettres(valeurs.data());
}

} // namespace

std::vector<compagnon::PlageDeStyle> StylesDeLettres(uno::Reference<uno::XInterface> const& source,
                                                     uno::Any const* valeurs,
                                                     OUString const& texte) {
    std::uint16_t const latin = StyleDeLettres(valeurs);
    if (EstToutLatin(Vue(texte))) {
        return {{0, texte.getLength(), latin}};
    }
    uno::Reference<beans::XMultiPropertySet> const proprietes(source, uno::UNO_QUERY_THROW);
    std::optional<std::uint16_t> asiatique;
    std::optional<std::uint16_t> complexe;
    compagnon::PlagesDeStyle plages;
    std::int32_t debut = 0;
    for (SuiteDEcriture const& suite : DonneEcritures(texte)) {
        std::uint16_t style = latin;
        if (suite.ecriture == Ecriture::Asiatique) {
            asiatique = asiatique ? asiatique : StyleDEcriture(proprietes, valeurs, "Asian");
            style = *asiatique;
        } else if (suite.ecriture == Ecriture::Complexe) {
            complexe = complexe ? complexe : StyleDEcriture(proprietes, valeurs, "Complex");
            style = *complexe;
        }
        auto const fin = static_cast<std::int32_t>(suite.fin);
        plages.Ajoute(debut, fin, style);
        debut = fin;
    }
    return plages.Donne();
}

} // namespace extension
