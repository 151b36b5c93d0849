// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <string>

namespace compagnon {

/// A text (UTF-8) as it may be written to a terminal: what steers one, turns the reading direction
/// or does not show is spelled out ("<U+202E>"), so that a file's name looks like no other and does
/// nothing. Bytes that are not UTF-8 become U+FFFD.
std::string Montrable(std::string const& texte);

} // namespace compagnon
