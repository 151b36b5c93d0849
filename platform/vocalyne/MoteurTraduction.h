// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <locale>

class CatalogueMo;

// What of translation needs Boost.Locale. It stands in a library of its own,
// libOutilsTraduction.so, which is loaded with the first message that is asked for: Boost.Locale
// has some thousand symbols bound when it is loaded, a fifth of what loading a connector takes, and
// most sessions of a host show no message at all. Any thread.
namespace moteurTraduction {

/// Replaces `locale` by one that serves the catalog. False, and no change, for a catalog that
/// Boost.Locale cannot use, or where the library cannot be loaded.
bool FaisLocale(CatalogueMo const& catalogue, std::locale& locale);

/// The translation that the locale has for a message (UTF-8), or null. `contexte` may be null. The
/// result lives as long as the locale.
char const* Traduis(std::locale const& locale, char const* contexte, char const* message);

} // namespace moteurTraduction
