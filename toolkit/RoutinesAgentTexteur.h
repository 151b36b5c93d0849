// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "InfosApplication.h"
#include "UniChaine.h"

class ImplAgentTexteur;

// Routines that work on any agent through its operations. Host's calling thread.

/// Lets the host's record reach the agent: calls its `InitialiseTexteur` with the record's
/// initialisation class, an empty message, and the kind of request as a mode (1, 2, 3 become 0, 1,
/// 2; anything else becomes 3). Returns its answer; false for a null agent.
bool InitialiseAgentSelonInfos(ImplAgentTexteur* agent, InfosApplication const& infos);

/// The zone that holds `position`, or the one before it when `position` is `fin` (the end of the
/// text). Outs: its length and its start; both 0 first.
void DonneBornesZone(ImplAgentTexteur& agent, int position, int fin, int& longueur, int& debut);

/// True when the text is shorter than `b`; otherwise true exactly when a = b = c >= 1 and a zone
/// ends at b.
bool EstFinDeZone(ImplAgentTexteur& agent, int a, int b, int c);

/// Do two version numbers share their hundreds (903 and 950 do, 903 and 1003 do not)? A text that
/// is not a decimal integer counts as 0.
bool EstMemeCentaineVersion(UniChaine const& version1, UniChaine const& version2);
