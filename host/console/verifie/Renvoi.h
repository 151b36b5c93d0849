// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QString>

namespace hote {

/// Where the contract of an operation stands in the SDK's headers.
struct Renvoi {
    QString entete; ///< the header's name; empty when no header declares the operation
    int ligne = 0;  ///< counted from 1: the declaration, with its contract above it
};

/// Looks `operation` up (a name, as it is declared) in the headers that this program was built
/// with.
Renvoi TrouveRenvoi(QString const& operation);

} // namespace hote
