// SPDX-License-Identifier: MPL-2.0
#include "MoteurTraduction.h"

#include "FonctionsMoteur.h"

#include <dlfcn.h>

namespace {

/// The library's two functions; null where it cannot be loaded. Loaded once, and never unloaded:
/// locales hold objects of its classes.
struct Moteur {
    decltype(&vocalyneFaisLocale) faisLocale = nullptr;
    decltype(&vocalyneTraduis) traduis = nullptr;

    Moteur() {
        // Found beside this library, by its run path.
        auto* const bibliotheque = dlopen("libOutilsTraduction.so", RTLD_NOW | RTLD_LOCAL);
        if (bibliotheque == nullptr)
            return;
        faisLocale =
            reinterpret_cast<decltype(faisLocale)>(dlsym(bibliotheque, "vocalyneFaisLocale"));
        traduis = reinterpret_cast<decltype(traduis)>(dlsym(bibliotheque, "vocalyneTraduis"));
    }
};

Moteur const& DonneMoteur() {
    static Moteur const moteur;
    return moteur;
}

} // namespace

namespace moteurTraduction {

bool FaisLocale(CatalogueMo const& catalogue, std::locale& locale) {
    auto const& moteur = DonneMoteur();
    return moteur.faisLocale != nullptr && moteur.faisLocale(catalogue, locale);
}

char const* Traduis(std::locale const& locale, char const* contexte, char const* message) {
    auto const& moteur = DonneMoteur();
    return moteur.traduis != nullptr ? moteur.traduis(locale, contexte, message) : nullptr;
}

} // namespace moteurTraduction
