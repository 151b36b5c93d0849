// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QString>

namespace banc {

/// Holds an agent on an office's document and does what the lines of standard input ask, each
/// answered with the microseconds that passed, seen from the plug-in: "lis" reads all zones (their
/// number follows), "corrige ZONE" replaces the first letter of a zone and waits for the reply.
/// The program's exit status.
int ConduisBureau(QString const& identifiant);

} // namespace banc
