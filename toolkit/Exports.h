// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "InfosApplication.h"
#include "InterfaceAgentTexteur.h"
#include "UniChaine.h"

/// Marks what a connector exports; everything else stays inside.
#define VOCALYNE_EXPORT __attribute__((visibility("default")))

// The five functions by which the host knows a connector, by their plain names (C linkage). Each
// connector defines all five, and exports nothing else: what it shares with another one by accident
// would be taken from whichever was loaded first. They keep no state that a later call could tell.
//
// Objects cross by address; the host owns what it passes, and it is used during the call only. A
// null address is answered as a window that is not served. An exception reaches the host as it is,
// once all that was allocated is released. InterfaceTexteur.h says how the lines in brackets read.
extern "C" {

/// Assigns the window class of the word processor that the connector serves to `*noms`, replacing
/// what it held: the same text every time, not empty. A host looks for it in the record of the
/// window in front. Nothing is done to a null `noms`.
/// [host; needs loaded]
VOCALYNE_EXPORT void DonneNomsTexteurs(UniChaine* noms);

/// A word processor of its own, without a window in front. The object is the host's, which deletes
/// it through `InterfaceTexteur`. Null from a connector that has none, as most.
/// [host; needs loaded; fails: null]
VOCALYNE_EXPORT InterfaceTexteur* CreeTexteur();

/// The same for a palette.
/// [host; needs loaded; fails: null]
VOCALYNE_EXPORT InterfaceTexteur* CreeTexteurPalette();

/// Is the window in front served? If so, `*idDocument` takes the document's identifier (the
/// record's `Id`, for a connector that knows no better), even empty; it then goes to
/// `CreeAgentTexteur`.
/// [host; needs loaded; fails: false, `*idDocument` as it was]
VOCALYNE_EXPORT bool DonneIdentificateurDocumentCourant(InfosApplication const* infos,
                                                        UniChaine* idDocument);

/// An agent for the document, whose `InitialiseTexteur` has answered true (see
/// `InitialiseAgentSelonInfos`). It belongs to the host, which deletes it through
/// `InterfaceAgentTexteur` before the library is unloaded. May block while the word processor
/// starts, four minutes (240 000 ms) at most, and may show an alert. No agent is made for a window
/// that is not served, for an empty identifier, or for a document that cannot be reached.
/// [host; needs loaded; leaves the agent served; waits; throws what the agent's own code throws;
/// fails: null, with nothing left behind]
VOCALYNE_EXPORT InterfaceAgentTexteur* CreeAgentTexteur(InfosApplication const* infos,
                                                        UniChaine const* idDocument);
}
