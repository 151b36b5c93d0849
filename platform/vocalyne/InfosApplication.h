// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "UniChaine.h"

#include <cstdint>

/// The host's description of the application in front. The host owns it and passes it by address;
/// a connector reads it during the call only, on the thread of the call. The order of the fields is
/// part of the contract.
struct InfosApplication {
    UniChaine Application;          ///< the application's name; not read by connectors
    UniChaine Id;                   ///< identifier of the document in front
    UniChaine ClasseInitialisation; ///< window class handed to the agent's `InitialiseTexteur`
    UniChaine NoVersion;            ///< the application's version; not read by connectors
    std::int32_t Genre = 0;         ///< kind of request: 1, 2 or 3, or anything else
    std::int32_t Reserve = 0;       ///< not read by connectors
    UniChaine Classe;               ///< class name of the window in front
    UniChaine TexteFenetre;         ///< not read by connectors
    UniChaine Titre;                ///< not read by connectors
};
