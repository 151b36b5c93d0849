// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "OptionsHote.h"

#include <QStringList>

namespace hote {

/// Reads the arguments, the program's name first. Throws ErreurHote (kSortieUsage) when they are
/// wrong: unknown commands and options, missing or wrong values, arguments too many.
OptionsHote AnalyseLigne(QStringList const& arguments);

} // namespace hote
