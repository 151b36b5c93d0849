// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Endroit.h"
#include "modele/NonLus.h"

#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/text/XText.hpp>
#include <com/sun/star/util/XProtectable.hpp>

#include <memory>
#include <optional>

namespace extension {

/// The text that a paragraph stands in (the body, a cell, a note, a frame) and what protects it.
/// Main thread, as the questions below; they may throw UNO exceptions.
struct Contenant {
    css::uno::Reference<css::text::XText> texte;
    /// The cell or frame that can be protected, and the property that says so; may be empty.
    css::uno::Reference<css::beans::XPropertySet> protecteur;
    char const* propriete = nullptr;
    /// The paragraph to which a note or frame is anchored: protected with it.
    css::uno::Reference<css::beans::XPropertySet> ancre;
    /// The spreadsheet's sheet that a shape or comment stands on.
    css::uno::Reference<css::util::XProtectable> feuille;
    std::shared_ptr<Contenant const> parent;
    /// What a person calls it.
    std::shared_ptr<Endroit const> endroit;

    bool EstProtege() const;
};

/// Does a section around the paragraph forbid changes?
bool EstDansSectionProtegee(css::uno::Reference<css::beans::XPropertySet> const& paragraphe);

/// Why a section around the paragraph is not read: it is hidden, or generated (an index, a table of
/// contents). Nothing where it is.
std::optional<compagnon::RaisonNonLu>
RaisonDeNePasLire(css::uno::Reference<css::beans::XPropertySet> const& paragraphe);

} // namespace extension
