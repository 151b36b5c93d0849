// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <string>
#include <string_view>

namespace compagnon {

/// Appends the bytes to `sortie` in Base64: standard alphabet, padding, no line breaks. Linear.
void AjouteBase64(std::string_view octets, std::string& sortie);

} // namespace compagnon
