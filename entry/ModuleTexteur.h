// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "UniChaine.h"

// The module's set-up while it is loaded, and its clean-up while it is unloaded; Chargement.cpp
// runs them, on the thread that loads and unloads it.

/// The settings file shared with the host: the home directory + "/.vocalyne/9.0/vocalyne.conf", put
/// together without cleaning (a home of "/" gives two slashes).
UniChaine DonneCheminReglages();

/// Brings up what agents and alerts need: display language, Qt application, remembered answers,
/// application names. Catches nothing.
void InitialiseModule();

/// Releases what stands in the host's libraries: the storers of remembered answers, which may
/// write as they go, and the string library's converter. Nothing happens the second time.
void LibereReponsesEtConvertisseur();

/// Releases the whole module: the above, then the Qt application object, but that only if
/// `InitialiseModule` had it made: one that the host brought along stays the host's.
void LibereModule();
