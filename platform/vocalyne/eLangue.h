// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "ExportVocalyne.h"

/// A language of the interface and of the message catalogs.
enum eLangue : int {
    kLangueFrancais = 1,
    kLangueAnglais = 2,
};

/// The person's choice of display language, as it stands in the settings file.
enum eLangueAffichage : int {
    kAffichageSysteme = 0, ///< follow the desktop's language
    kAffichageFrancais = 1,
    kAffichageAnglais = 2,
};

/// The language to use for a choice. `kAffichageSysteme`, and any value that is none of the
/// enumeration's, follow the desktop (LC_ALL, LC_MESSAGES, LANG, in that order): French for a
/// French locale, English for every other one. Any thread; never fails.
VOCALYNE_OUTILS eLangue eLangueSelonELangueAffichage(eLangueAffichage affichage);
