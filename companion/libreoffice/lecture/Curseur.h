// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <com/sun/star/text/XText.hpp>
#include <com/sun/star/text/XTextCursor.hpp>

#include <cstddef>
#include <string_view>

namespace extension {

/// How a cursor of the office counts its steps inside letters.
enum class Pas { PointsDeCode, Unites };

/// Steps that a cursor takes over these letters.
std::size_t CompteLesPas(std::u16string_view lettres, Pas pas) noexcept;

/// Moves by any number of steps (the office's own call takes no more than 32,767).
void Avance(com::sun::star::uno::Reference<com::sun::star::text::XTextCursor> const& curseur,
            std::size_t nombre, bool etend);

/// A cursor so many steps after the start of `depart`, a range of `texte`.
com::sun::star::uno::Reference<com::sun::star::text::XTextCursor>
PlaceCurseur(com::sun::star::uno::Reference<com::sun::star::text::XText> const& texte,
             com::sun::star::uno::Reference<com::sun::star::text::XTextRange> const& depart,
             std::size_t nombre);

} // namespace extension
