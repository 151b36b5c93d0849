// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <com/sun/star/document/XRedlinesSupplier.hpp>
#include <com/sun/star/frame/XModel.hpp>
#include <com/sun/star/text/XText.hpp>

namespace extension {

/// The tracked deletions of a Writer document. Main thread only.
class Suppressions {
  public:
    explicit Suppressions(
        com::sun::star::uno::Reference<com::sun::star::frame::XModel> const& modele)
        : modele_(modele, com::sun::star::uno::UNO_QUERY) {}

    /// How many deletions started before this paragraph of `texte` and go on into it: its own
    /// portions do not say.
    int OuvertesAuDebut(
        com::sun::star::uno::Reference<com::sun::star::text::XTextRange> const& paragraphe,
        com::sun::star::uno::Reference<com::sun::star::text::XText> const& texte) const;

  private:
    com::sun::star::uno::Reference<com::sun::star::document::XRedlinesSupplier> modele_;
};

} // namespace extension
