// SPDX-License-Identifier: MPL-2.0
#include "ApplicationSupportee.h"

#include "ClesInfos.h"
#include "pont/ClassesFenetre.h"

bool EstApplicationSupportee(InfosApplication const& infos) {
    return infos.Classe ==
               UniChaine(classesFenetre::kOpenOffice4, UniChaine::kCodageLitteral, -1) ||
           infos.Classe == UniChaine(classesFenetre::kOpenOffice3, UniChaine::kCodageLitteral, -1);
}
