// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Traduction.h"

/// The connector's translation domain, passed to every `_Tr`. Each connector defines it once (null
/// at first) and fills it from a loader given to `AjouterAuxDomainesDeTraduction`, on the thread
/// that loads the connector; read on any thread from then on.
extern DomaineDeTraduction* domaineTexteur;
