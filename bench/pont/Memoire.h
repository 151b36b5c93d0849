// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QString>

namespace banc {

/// Reads the companion's document of so many zones through an agent, and prints by how many KiB the
/// process' peak grew by that.
int LisEtDisMemoire(QString const& instance, int zones);

} // namespace banc
