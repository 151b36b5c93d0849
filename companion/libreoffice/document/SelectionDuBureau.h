// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <com/sun/star/frame/XModel.hpp>
#include <com/sun/star/uno/Any.hxx>

namespace extension {

/// Selects something in the document's window, as a person would: a range, a cell, a shape. Throws
/// a UNO exception where the document has no window that selects. Main thread.
void SelectionneDans(css::uno::Reference<css::frame::XModel> const& modele,
                     css::uno::Any const& objet);

} // namespace extension
