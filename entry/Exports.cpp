// SPDX-License-Identifier: MPL-2.0
#include "Exports.h"

#include "ApplicationSupportee.h"
#include "ClesInfos.h"
#include "pont/ClassesFenetre.h"

void DonneNomsTexteurs(UniChaine* noms) {
    // The 4.0 name alone, although windows of 3.0 are recognised too: the host knows both by it.
    if (noms != nullptr) {
        *noms = UniChaine(classesFenetre::kOpenOffice4, UniChaine::kCodageLitteral, -1);
    }
}

// No stand-alone word processor and no palette: agents are for windows in front.
InterfaceTexteur* CreeTexteur() {
    return nullptr;
}

InterfaceTexteur* CreeTexteurPalette() {
    return nullptr;
}

bool DonneIdentificateurDocumentCourant(InfosApplication const* infos, UniChaine* idDocument) {
    if (infos == nullptr || idDocument == nullptr || !EstApplicationSupportee(*infos)) {
        return false;
    }
    *idDocument = infos->Id;
    return true;
}
