// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "TexteDessine.h"

#include <com/sun/star/drawing/XShapes.hpp>

#include <functional>

namespace extension {

/// What a walk over shapes needs to know.
struct FondDeFormes {
    css::uno::Reference<css::frame::XModel> modele;
    CarnetDeZones& carnet;
    RecueilDeZones const& recueil;
    /// What protects the shapes; may be empty.
    std::shared_ptr<Contenant const> contenant;
    /// What they stand on; empty in a text document.
    std::shared_ptr<Endroit const> page;
    /// How many of the page were met.
    int& compte;
};

/// Hands out the zones of the shapes in view of a page, in their order, groups opened, tables cell
/// by cell. Shapes without a letter have no zone. Main thread.
void ParcoursFormes(css::uno::Reference<css::drawing::XShapes> const& formes,
                    FondDeFormes const& fond);

} // namespace extension
