// SPDX-License-Identifier: MPL-2.0
#include "Proprietes.h"

using namespace com::sun::star;

namespace extension {

uno::Any Valeur(uno::Reference<beans::XPropertySet> const& objet, char const* nom) {
    return objet.is() ? objet->getPropertyValue(rtl::OUString::createFromAscii(nom)) : uno::Any();
}

uno::Any ValeurSiConnue(uno::Reference<beans::XPropertySet> const& objet, char const* nom) {
    rtl::OUString const propriete = rtl::OUString::createFromAscii(nom);
    return objet.is() && objet->getPropertySetInfo()->hasPropertyByName(propriete)
               ? objet->getPropertyValue(propriete)
               : uno::Any();
}

bool EstVrai(uno::Any const& valeur) {
    bool vrai = false;
    return (valeur >>= vrai) && vrai;
}

bool Vaut(uno::Reference<beans::XPropertySet> const& objet, char const* nom, bool defaut) {
    bool vrai = defaut;
    ValeurSiConnue(objet, nom) >>= vrai;
    return vrai;
}

} // namespace extension
