// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <com/sun/star/text/XText.hpp>
#include <com/sun/star/text/XTextCursor.hpp>

#include <cstddef>
#include <string_view>

namespace extension {

/// Steps that a cursor of Writer takes over these letters: one a code point. Any thread.
std::size_t CompteLesPas(std::u16string_view lettres) noexcept;

/// Moves by any number of steps (the office's own call takes no more than 32,767); throws what the
/// office throws. Main thread, as the next one.
void Avance(css::uno::Reference<css::text::XTextCursor> const& curseur, std::size_t nombre,
            bool etend);

/// A cursor so many steps after the start of `depart`, a range of `texte`.
css::uno::Reference<css::text::XTextCursor>
PlaceCurseur(css::uno::Reference<css::text::XText> const& texte,
             css::uno::Reference<css::text::XTextRange> const& depart, std::size_t nombre);

} // namespace extension
