// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <string>

namespace banc {

/// A zone-list document like a companion's for French prose: each zone 500 UTF-16 units with their
/// accents, and three style runs; 913 bytes a zone on average.
std::string FaisDocument(int nombreDeZones);

} // namespace banc
