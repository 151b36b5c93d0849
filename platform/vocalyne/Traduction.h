// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "ExportVocalyne.h"
#include "UniChaine.h"
#include "eLangue.h"

#include <functional>
#include <locale>
#include <utility>

/// A translation domain: the locale that holds its messages, and the resource path of the catalog
/// in use. Owned by the translation library: it lives until the process ends, or until a domain is
/// made anew for the same slot (a connector that was unloaded and loaded again).
using DomaineDeTraduction = std::pair<std::locale*, UniChaine>;

/// Keeps a loader of translation domains and runs it at once; it is run again each time the display
/// language is fixed anew. Not thread-safe: called while libraries are loaded, on one thread.
///
/// A plain function is kept by its address, and forgotten once the library that it came from is
/// unloaded; given again, it is kept once. Any other callable must stay valid until the process
/// ends.
VOCALYNE_OUTILS void AjouterAuxDomainesDeTraduction(std::function<void()> chargeur);

/// Offers the catalog (gettext .mo) at a resource path for a language.
///
/// The first call for a domain makes the domain and writes its address to `*domaine`; it serves the
/// messages' own identifiers (French text) until a catalog is loaded. The catalog is loaded when
/// `langue` is the display language, or whatever the language when `quelleQueSoitLaLangue`. A
/// resource that is missing, or that is no catalog, leaves the domain as it was; a path that is no
/// resource's (":/…") is not read. The bytes are
/// copied: the resource may go away afterwards.
VOCALYNE_OUTILS void InitLocaleAvecQRC(DomaineDeTraduction** domaine, UniChaine const& chemin,
                                       eLangue langue, bool quelleQueSoitLaLangue);

/// The translation of a message, or the message itself (UTF-8) when the domain is null or has none.
/// `contexte` may be null. A null message gives the empty string. Any thread once domains are
/// loaded.
// The name is the host library's own, reserved or not.
// NOLINTNEXTLINE(bugprone-reserved-identifier)
VOCALYNE_OUTILS UniChaine _Tr(DomaineDeTraduction* domaine, char const* message,
                              char const* contexte);
