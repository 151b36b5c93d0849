// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <string>

namespace extension {

/// Sixteen hexadecimal digits that no other call, in this process or another, is likely to give.
/// Any thread.
std::string HasardHexadecimal();

} // namespace extension
