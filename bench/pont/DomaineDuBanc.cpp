// SPDX-License-Identifier: MPL-2.0
// The plug-in's door, which defines this, is not linked here: it sets a Qt application up at load.
#include "domaineTexteur.h"

DomaineDeTraduction* domaineTexteur = nullptr;
