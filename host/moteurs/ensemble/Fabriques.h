// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "moteurs/Atelier.h"

namespace hote {

/// All engines of this system, with what is done to paragraphs before and to remarks behind them.
Atelier::Reglage FaisReglage();

} // namespace hote
