// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <string>
#include <string_view>

namespace compagnon {

/// Appends a JSON string, quotes and all, of what is UTF-8 already. Any thread.
void AjouteChaineJson(std::string& json, std::string_view utf8);

} // namespace compagnon
