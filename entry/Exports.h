// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "InfosApplication.h"
#include "InterfaceAgentTexteur.h"
#include "UniChaine.h"

/// Marks what libTexteurOOo.so exports; a version script keeps everything else inside.
#define VOCALYNE_EXPORT __attribute__((visibility("default")))

// The five functions by which the host knows the plug-in, with C linkage. They keep no state and
// take no lock: call them on the thread that loaded the library, between its load and its unload.
// Objects cross by address; the host owns what it passes, and it is used during the call only. A
// null address is answered as a window that is not served. Exceptions are not caught.
extern "C" {

/// Assigns the name of the word processor served to `*noms`, replacing what it held.
VOCALYNE_EXPORT void DonneNomsTexteurs(UniChaine* noms);

/// Always null, whatever is passed: this plug-in offers no stand-alone word processor.
VOCALYNE_EXPORT InterfaceTexteur* CreeTexteur();

/// Always null, whatever is passed: this plug-in offers no palette.
VOCALYNE_EXPORT InterfaceTexteur* CreeTexteurPalette();

/// Is the window in front served? If so, `*idDocument` takes the record's `Id`, even empty; if not,
/// it stays as it was.
VOCALYNE_EXPORT bool DonneIdentificateurDocumentCourant(InfosApplication const* infos,
                                                        UniChaine* idDocument);

/// An agent for the document, or null: for a window that is not served, an empty identifier, or a
/// companion that does not answer. The agent belongs to the host, which deletes it through
/// `InterfaceAgentTexteur`. Blocks for up to four minutes, while the office suite starts; may show
/// an alert.
VOCALYNE_EXPORT InterfaceAgentTexteur* CreeAgentTexteur(InfosApplication const* infos,
                                                        UniChaine const* idDocument);
}
