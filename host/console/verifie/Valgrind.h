// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "BilanVerification.h"

#include <QStringList>

namespace hote {

/// Runs a trial (the arguments that start it) once more under Valgrind, where that is installed,
/// and tells what it finds in the connector's own code. `greffon` is the connector's file. Main
/// thread; takes half a minute or so.
void RegardeAvecValgrind(BilanVerification& bilan, QStringList const& arguments,
                         QString const& greffon);

} // namespace hote
