// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "InfosApplication.h"
#include "InterfaceAgentTexteur.h"
#include "UniChaine.h"

/// Marks what libTexteurOOo.so exports; a version script keeps everything else inside.
#define VOCALYNE_EXPORT __attribute__((visibility("default")))

// The five functions by which the host knows the plug-in, with C linkage. They keep no state and
// take no lock. Objects cross by address; the host owns what it passes, and it is used during the
// call only. A null address is answered as a window that is not served. Nothing is caught: what an
// export throws has released all that was allocated. InterfaceTexteur.h says how the lines in
// brackets read.
extern "C" {

/// Assigns the name of the word processor served to `*noms`, replacing what it held.
/// [host; needs loaded]
VOCALYNE_EXPORT void DonneNomsTexteurs(UniChaine* noms);

/// Always null, whatever is passed: this plug-in offers no stand-alone word processor. Of another
/// plug-in the object would be the host's.
/// [host; needs loaded; fails: null]
VOCALYNE_EXPORT InterfaceTexteur* CreeTexteur();

/// Always null, whatever is passed: this plug-in offers no palette. As above.
/// [host; needs loaded; fails: null]
VOCALYNE_EXPORT InterfaceTexteur* CreeTexteurPalette();

/// Is the window in front served? If so, `*idDocument` takes the record's `Id`, even empty.
/// [host; needs loaded; fails: false, `*idDocument` as it was]
VOCALYNE_EXPORT bool DonneIdentificateurDocumentCourant(InfosApplication const* infos,
                                                        UniChaine* idDocument);

/// An agent for the document, whose `InitialiseTexteur` has answered true. It belongs to the host,
/// which deletes it through `InterfaceAgentTexteur` before the library is unloaded. Blocks for up
/// to four minutes (240 000 ms), while the office suite starts; may show an alert. No agent is made
/// for a window that is not served, an empty identifier, or a companion that does not answer.
/// [host; needs loaded; leaves the agent served; waits; throws what the agent's own code throws;
/// fails: null, with nothing left behind]
VOCALYNE_EXPORT InterfaceAgentTexteur* CreeAgentTexteur(InfosApplication const* infos,
                                                        UniChaine const* idDocument);
}
