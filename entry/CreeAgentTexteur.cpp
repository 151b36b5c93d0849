// SPDX-License-Identifier: MPL-2.0
#include "ClesInfos.h"
#include "CreationAgent.h"
#include "Exports.h"
#include "pont/ModuleProxyOOo.h"

InterfaceAgentTexteur* CreeAgentTexteur(InfosApplication const* infos,
                                        UniChaine const* idDocument) {
    if (infos == nullptr || idDocument == nullptr) {
        return nullptr;
    }
    return CreeAgentInitialise<ModuleProxyOOo>(*infos, *idDocument).release();
}
