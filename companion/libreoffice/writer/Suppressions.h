// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <com/sun/star/document/XRedlinesSupplier.hpp>
#include <com/sun/star/frame/XModel.hpp>
#include <com/sun/star/text/XText.hpp>

namespace extension {

/// The tracked deletions of a Writer document. Main thread only.
class Suppressions {
  public:
    explicit Suppressions(css::uno::Reference<css::frame::XModel> const& modele)
        : modele_(modele, css::uno::UNO_QUERY) {}

    /// How many deletions started before this paragraph of `texte` and go on into it: its own
    /// portions do not say.
    int OuvertesAuDebut(css::uno::Reference<css::text::XTextRange> const& paragraphe,
                        css::uno::Reference<css::text::XText> const& texte) const;

  private:
    css::uno::Reference<css::document::XRedlinesSupplier> modele_;
};

} // namespace extension
