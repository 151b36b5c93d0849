// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "EnTeteJson.h"
#include "correction/Bilan.h"

#include <string>

namespace hote {

/// A result as one line of JSON, UTF-8; the form is in host/README.md. `automatique` tells whether
/// corrections were asked for.
std::string DonneBilanJson(EnTeteJson const& enTete, bool automatique, Bilan const& bilan);

} // namespace hote
