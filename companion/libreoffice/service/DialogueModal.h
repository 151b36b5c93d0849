// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <com/sun/star/frame/XModel.hpp>
#include <com/sun/star/uno/XComponentContext.hpp>

namespace extension {

/// Finds out whether a modal dialogue of this office waits for the person. Calls are served beneath
/// one, and an edit there would land under the person's hands. Main thread only.
class DialogueModal {
  public:
    explicit DialogueModal(css::uno::Reference<css::uno::XComponentContext> const& contexte)
        : contexte_(contexte) {}

    /// Exact with GTK; elsewhere any dialogue in view counts, modal or not.
    bool EstOuvert() const;

  private:
    css::uno::Reference<css::uno::XComponentContext> contexte_;
};

} // namespace extension
