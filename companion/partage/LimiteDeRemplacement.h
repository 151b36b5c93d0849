// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <string>
#include <string_view>

namespace compagnon {

/// Throws `ErreurDuService` (`TropGrand`) for a text that no correction may put in for its length
/// alone, before anything slow is done with it. Any thread, as the next one.
void VerifieRemplacement(std::u16string_view texte);

/// A text that came from the bus to be put in, in UTF-8. Of one past the limit no more is kept than
/// has it refused: it may be of a hundred mebibytes, and wait among others. Empty on what is not
/// UTF-8, which no bus lets through.
std::u16string RemplacementDepuisUtf8(std::string_view utf8);

} // namespace compagnon
