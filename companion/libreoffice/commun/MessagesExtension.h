// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <string>

namespace extension {

/// The office's language for people is French? Read once, at the start.
bool EstEnFrancais();
void MetsLangue(bool francais);

/// The one of the two texts (UTF-8) that is in that language.
std::string Dis(char const* enFrancais, char const* enAnglais);

/// The name of a correction in the undo list.
std::u16string NomDeCorrection(std::u16string const& avant, std::u16string const& apres);

} // namespace extension
