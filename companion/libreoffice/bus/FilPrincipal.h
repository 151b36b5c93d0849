// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <com/sun/star/awt/XRequestCallback.hpp>
#include <com/sun/star/uno/XComponentContext.hpp>

#include <functional>

namespace extension {

/// The only way to a document: the office's main thread, through its event queue. Never waits and
/// never takes the office's lock on the calling thread.
class FilPrincipal {
  public:
    /// Office lock not needed; any thread.
    explicit FilPrincipal(css::uno::Reference<css::uno::XComponentContext> const& contexte);

    /// Queues the work, which throws nothing; it runs in the order of posting, with the office's
    /// lock held, once the main thread is free (also beneath a modal dialog). While the office
    /// starts or quits it may never run. Any thread.
    void Poste(std::function<void()> travail);

  private:
    css::uno::Reference<css::awt::XRequestCallback> file_;
};

} // namespace extension
