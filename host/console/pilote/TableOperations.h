// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QString>

#include <cstddef>

namespace hote {

/// A name of the dialogue, and what it does.
template <class Operation>
struct EntreeOperation {
    char const* nom;
    Operation operation;
};

/// The operation of a name, null when the table has none.
template <class Operation, std::size_t nombre>
Operation TrouveOperation(EntreeOperation<Operation> const (&table)[nombre], QString const& nom) {
    for (auto const& entree : table) {
        if (nom == QLatin1String(entree.nom)) {
            return entree.operation;
        }
    }
    return nullptr;
}

} // namespace hote
