// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <string>

namespace banc {

/// What the figures were taken on, one fact a line.
std::string DecrisMachine();

} // namespace banc
