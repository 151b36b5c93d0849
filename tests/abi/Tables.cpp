// SPDX-License-Identifier: MPL-2.0
// Compiled for its class dump alone: the virtual tables that hosts call through. The spies define
// every operation, so that the places of pure ones show their names as well.
#include "AgentEspion.h"
#include "ConnecteurEspion.h"
#include "ImplZoneDeTexteTEMP.h"
#include "ModuleProxyOOo.h"
#include "VocalyneOpenOfficeProxyQDBUS.h"
#include "ZoneDeTexteOOoProxy.h"
#include "ZoneEspion.h"
