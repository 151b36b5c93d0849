// SPDX-License-Identifier: MPL-2.0
// Compiled for its class dump alone: the virtual tables that hosts call through.
#include "ImplZoneDeTexteTEMP.h"
#include "ModuleProxyOOo.h"
#include "ZoneDeTexteOOoProxy.h"
