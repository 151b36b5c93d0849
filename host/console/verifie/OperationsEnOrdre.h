// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "CollectionZonesDeTexte.h"
#include "InterfaceAgentTexteur.h"

#include <array>

namespace hote {

/// An operation that any other may precede, with arguments that every connector takes.
struct OperationEnOrdre {
    char const* nom;
    void (*appelle)(InterfaceAgentTexteur&, CollectionZonesDeTexte&);
    bool peutLever;
};

/// All but those that change the text, and the questions that are constants.
extern std::array<OperationEnOrdre, 29> const kOperationsEnOrdre;

} // namespace hote
