// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Sortie.h"

#include <QString>

#include <istream>
#include <optional>
#include <string>

namespace hote {

/// Asks the person: shows `invite` (UTF-8, without a sign at its end) and reads a line, which may
/// block as long as the person thinks. Nothing at the end of the input, or when nobody sees the
/// question. Bytes that do not decode become U+FFFD. Main thread.
std::optional<QString> DemandeLigne(std::istream& entree, Sortie& sortie,
                                    std::string const& invite);

} // namespace hote
