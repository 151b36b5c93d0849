// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <com/sun/star/frame/XFrame.hpp>
#include <com/sun/star/uno/XComponentContext.hpp>

#include <optional>
#include <string_view>

namespace extension {

/// What the menu offers.
enum class Commande { Corrige, Dictionnaire, Diagnostic };

/// The command of an address "com.ombrel.vocalyne:NAME", by its name; nothing for another.
std::optional<Commande> CommandeDeNom(std::u16string_view nom);

/// Carries a command out on the document in the window `cadre`: starts the host, or says what is
/// missing. The office does not wait for the host. Main thread.
void ExecuteCommande(Commande commande,
                     css::uno::Reference<css::uno::XComponentContext> const& contexte,
                     css::uno::Reference<css::frame::XFrame> const& cadre);

} // namespace extension
