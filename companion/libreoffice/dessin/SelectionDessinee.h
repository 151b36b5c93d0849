// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "document/SelectionVue.h"

#include <com/sun/star/text/XTextRange.hpp>

namespace extension {

/// Texts of the drawing engine are selected: those of the selected shapes (groups and tables stand
/// for what is in them); `selection` is the office's collection of shapes. Null for anything else.
/// Main thread, as the next one.
std::unique_ptr<SelectionVue>
SelectionDeFormes(css::uno::Reference<css::uno::XInterface> const& selection);

/// A range inside one such text, which a person is editing.
std::unique_ptr<SelectionVue>
SelectionDansUneForme(css::uno::Reference<css::text::XTextRange> const& plage);

} // namespace extension
