// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <string>

namespace hote {

/// Says something beside the matter on standard error: one line, beginning with the program's name.
/// `message` is UTF-8; what a terminal should not see of it is taken out. Any thread.
void Avertis(std::string const& message);

} // namespace hote
