// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <string_view>

namespace banc {

/// Parses a zone-list document with simdjson and looks at every value of every zone; decodes and
/// keeps nothing. The number of zones. Throws std::runtime_error where it does not parse.
int CompteZonesSimd(std::string_view document);

} // namespace banc
