// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Sortie.h"

#include <QString>

#include <istream>
#include <optional>
#include <string>

namespace hote {

/// Asks the person: shows `invite` and takes one key at once, without Enter; on anything but a
/// terminal the first sign of a line of `entree`. The key is shown, Enter is passed over. Nothing
/// at the end of the input. Blocks as long as the person thinks. Main thread.
std::optional<QString> LisTouche(std::istream& entree, Sortie& sortie, std::string const& invite);

} // namespace hote
