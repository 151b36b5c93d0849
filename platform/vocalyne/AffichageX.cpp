// SPDX-License-Identifier: MPL-2.0
#include "AffichageX.h"

#include <QtGlobal>

#include <dlfcn.h>

namespace {

/// A function of libxcb. It is looked up, not linked: where it is missing Qt's X platform, which
/// uses it, cannot be loaded either.
template <class Fonction>
Fonction FonctionXcb(void* bibliotheque, char const* nom) {
    return reinterpret_cast<Fonction>(dlsym(bibliotheque, nom));
}

} // namespace

bool AffichageXRepond() {
    if (qEnvironmentVariableIsEmpty("DISPLAY")) {
        return false;
    }
    void* const xcb = dlopen("libxcb.so.1", RTLD_LAZY | RTLD_LOCAL);
    if (xcb == nullptr) {
        return false;
    }
    auto const connecte = FonctionXcb<void* (*)(char const*, int*)>(xcb, "xcb_connect");
    auto const aEchoue = FonctionXcb<int (*)(void*)>(xcb, "xcb_connection_has_error");
    auto const deconnecte = FonctionXcb<void (*)(void*)>(xcb, "xcb_disconnect");
    bool repond = false;
    if (connecte != nullptr && aEchoue != nullptr && deconnecte != nullptr) {
        void* const connexion = connecte(nullptr, nullptr); // never null, by its contract
        repond = aEchoue(connexion) == 0;
        deconnecte(connexion); // also due for a connection that failed
    }
    dlclose(xcb);
    return repond;
}
