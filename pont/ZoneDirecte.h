// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "ZoneRecue.h"

#include <string_view>

/// Reads a zone straight from its text, without the parser's tree, which takes five times as long.
///
/// `element`: the zone from its brace to the one that closes it, as `ParcoursJson` finds it right.
/// True: `zone`, empty before, is what the parser's tree would give. False, and `zone` in any
/// state: it is not written as companions write it (an escape, a text that is no string, an integer
/// that may not fit), and the parser is to judge. Throws nothing of its own.
bool LisZoneDirecte(std::string_view element, ZoneRecue& zone);
