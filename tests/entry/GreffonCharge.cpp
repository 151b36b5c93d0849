// SPDX-License-Identifier: MPL-2.0
#include "GreffonCharge.h"

#include <QtGlobal>

#include <dlfcn.h>

#include <stdexcept>

namespace {

template <class Fonction>
void Trouve(void* greffon, char const* nom, Fonction& fonction) {
    fonction = reinterpret_cast<Fonction>(dlsym(greffon, nom));
    if (fonction == nullptr) {
        throw std::runtime_error(dlerror());
    }
}

GreffonCharge Charge() {
    for (auto const* nom : {"DBUS_SESSION_BUS_ADDRESS", "XDG_RUNTIME_DIR", "DISPLAY"}) {
        qunsetenv(nom);
    }
    auto* const greffon = dlopen(CHEMIN_GREFFON, RTLD_NOW | RTLD_LOCAL);
    if (greffon == nullptr) {
        throw std::runtime_error(dlerror());
    }
    GreffonCharge charge{};
    Trouve(greffon, "DonneNomsTexteurs", charge.DonneNomsTexteurs);
    Trouve(greffon, "CreeTexteur", charge.CreeTexteur);
    Trouve(greffon, "CreeTexteurPalette", charge.CreeTexteurPalette);
    Trouve(greffon, "DonneIdentificateurDocumentCourant",
           charge.DonneIdentificateurDocumentCourant);
    Trouve(greffon, "CreeAgentTexteur", charge.CreeAgentTexteur);
    return charge;
}

} // namespace

GreffonCharge const& GreffonCharge::Donne() {
    static GreffonCharge const charge = Charge();
    return charge;
}
