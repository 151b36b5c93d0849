// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <com/sun/star/frame/XController.hpp>
#include <com/sun/star/frame/XDispatch.hpp>
#include <com/sun/star/util/URL.hpp>

namespace extension {

/// A command of the office's own menus in one of its windows, by its name (`Escape`). Main thread.
class CommandeDuBureau {
  public:
    CommandeDuBureau(css::uno::Reference<css::frame::XController> const& vue, char const* nom);

    /// Can it be done now? False where the window has no such command.
    bool EstPossible() const;
    /// Does it, and comes back when it is done; nothing where the window has no such command.
    void Execute() const;

  private:
    css::util::URL adresse_;
    css::uno::Reference<css::frame::XDispatch> commande_;
};

} // namespace extension
