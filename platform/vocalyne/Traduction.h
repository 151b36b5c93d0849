// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "ExportVocalyne.h"
#include "UniChaine.h"
#include "eLangue.h"

#include <functional>
#include <locale>
#include <utility>

/// A translation domain: the locale that holds its messages, and the resource path of the catalog
/// in use. Owned by the library that made it; it lives until the process ends.
using DomaineDeTraduction = std::pair<std::locale*, UniChaine>;

/// Keeps a loader of translation domains and runs it at once; it is run again each time the display
/// language is fixed anew. Not thread-safe: called while libraries are loaded, on one thread.
///
/// A loader that comes from a library which may be unloaded must be withdrawn before that:
/// `RetireDesDomainesDeTraduction` with the address that was given.
VOCALYNE_OUTILS void AjouterAuxDomainesDeTraduction(std::function<void()> chargeur);

/// Offers the catalog (gettext .mo) at a resource path for a language.
///
/// The first call for a domain makes the domain and writes its address to `*domaine`; it serves the
/// messages' own identifiers (French text) until a catalog is loaded. The catalog is loaded when
/// `langue` is the display language, or whatever the language when `quelleQueSoitLaLangue`. A
/// catalog that is missing or that cannot be read leaves the domain as it was. The bytes are copied:
/// the resource may go away afterwards.
VOCALYNE_OUTILS void InitLocaleAvecQRC(DomaineDeTraduction** domaine, UniChaine const& chemin,
                                       eLangue langue, bool quelleQueSoitLaLangue);

/// The translation of a message, or the message itself (UTF-8) when the domain is null or has none.
/// `contexte` may be null. A null message gives the empty string. Any thread once domains are
/// loaded.
// The name is the host library's own, reserved or not.
// NOLINTNEXTLINE(bugprone-reserved-identifier)
VOCALYNE_OUTILS UniChaine _Tr(DomaineDeTraduction* domaine, char const* message,
                              char const* contexte);
