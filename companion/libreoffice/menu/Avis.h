// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <com/sun/star/frame/XFrame.hpp>
#include <com/sun/star/uno/XComponentContext.hpp>

#include <string>

namespace extension {

/// Tells the person something, in a box above the window `cadre` (UTF-8; lines end in "\n"), and
/// returns when it was read. Without a screen nobody could close a box: it is written to standard
/// error then. Main thread.
void Avise(css::uno::Reference<css::uno::XComponentContext> const& contexte,
           css::uno::Reference<css::frame::XFrame> const& cadre, std::string const& texte,
           bool avertit);

} // namespace extension
