// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Traduction.h"

/// The translation domain of the toolkit's alerts, passed to every `_Tr`. The toolkit defines and
/// loads it, with catalogs in French and English, on the thread that loads the connector; read on
/// any thread from then on. A connector with messages of its own gives them a domain of its own;
/// one that has the alerts' in its catalogs too may define this one itself (null at first, filled
/// from a loader given to `AjouterAuxDomainesDeTraduction`), which then takes the toolkit's place.
extern DomaineDeTraduction* domaineTexteur;
