// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "document/SelectionVue.h"

#include <com/sun/star/frame/XModel.hpp>
#include <com/sun/star/text/XTextRange.hpp>

namespace extension {

/// What is selected in a Writer document (null for nothing with a text): a range of one of its
/// texts, cells of a table, shapes, or a range of a shape's text. Main thread.
std::unique_ptr<SelectionVue>
LisSelectionWriter(css::uno::Reference<css::frame::XModel> const& modele);

} // namespace extension
