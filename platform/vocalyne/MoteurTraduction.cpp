// SPDX-License-Identifier: MPL-2.0
#include "MoteurTraduction.h"

#include "FonctionsMoteur.h"

#include <dlfcn.h>

#include <string>

namespace {

/// The library stands beside this one. Asked for by its whole path: the run path that would find it
/// is this library's, and a sanitizer's dlopen looks along its own.
std::string DonneChemin() {
    Dl_info infos;
    std::string ici;
    if (dladdr(reinterpret_cast<void const*>(&moteurTraduction::Traduis), &infos) != 0) {
        ici = infos.dli_fname;
    }
    return ici.substr(0, ici.rfind('/') + 1) + "libOutilsTraduction.so";
}

/// The library's two functions; null where it cannot be loaded. Loaded once, and never unloaded:
/// locales hold objects of its classes.
struct MoteurCharge {
    decltype(&vocalyneFaisLocale) faisLocale = nullptr;
    decltype(&vocalyneTraduis) traduis = nullptr;

    MoteurCharge() {
        auto* const bibliotheque = dlopen(DonneChemin().c_str(), RTLD_NOW | RTLD_LOCAL);
        if (bibliotheque == nullptr) {
            return;
        }
        faisLocale =
            reinterpret_cast<decltype(faisLocale)>(dlsym(bibliotheque, "vocalyneFaisLocale"));
        traduis = reinterpret_cast<decltype(traduis)>(dlsym(bibliotheque, "vocalyneTraduis"));
    }
};

MoteurCharge const& DonneMoteur() {
    static MoteurCharge const moteur;
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
