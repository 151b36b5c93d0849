// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <com/sun/star/uno/XComponentContext.hpp>
#include <rtl/ustring.hxx>

#include <cstddef>
#include <string_view>
#include <vector>

namespace extension {

/// The three kinds of script that the office keeps formats and languages apart for.
enum class Ecriture { Latine, Asiatique, Complexe };

struct SuiteDEcriture {
    std::size_t fin; ///< where it ends, in UTF-16 units; it starts where the one before ends
    Ecriture ecriture;
};

/// Whom to ask; once, before any question. Main thread, as all of these.
void MetsContexteDesEcritures(css::uno::Reference<css::uno::XComponentContext> const& contexte);

/// A new object of a service of the office, from the same context; null where it has none.
css::uno::Reference<css::uno::XInterface> ServiceDuBureau(char const* nom);

/// Can all of it be nothing but Latin (or Greek, Cyrillic, signs)? Quick.
bool EstToutLatin(std::u16string_view texte) noexcept;

/// The text's scripts as the office sees them; what has none goes with what stands before.
std::vector<SuiteDEcriture> DonneEcritures(rtl::OUString const& texte);

} // namespace extension
