// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "FilDuBus.h"
#include "Service.h"

#include <com/sun/star/frame/XModel.hpp>
#include <com/sun/star/uno/XComponentContext.hpp>

#include <memory>
#include <string>

namespace bureau {

/// The extension in one running office.
class Extension {
  public:
    /// Starts it unless it runs, or the office is on its way out. Any thread; waits for nothing.
    static void
    Demarre(com::sun::star::uno::Reference<com::sun::star::uno::XComponentContext> const& contexte);
    /// Ends it for good: calls under way are answered with an error. Never waits for a document.
    static void Arrete();
    /// The running one, or null. Main thread.
    static Extension* Donne();

    /// Whole identifier of a document; empty when it is not of a kind that is served.
    std::string
    Identifiant(com::sun::star::uno::Reference<com::sun::star::frame::XModel> const& modele);
    std::string DonneEtat() const { return fil_->DonneEtat(); }

  private:
    explicit Extension(
        com::sun::star::uno::Reference<com::sun::star::uno::XComponentContext> const& contexte);

    std::shared_ptr<Service> service_;
    std::shared_ptr<Appels> appels_;
    std::unique_ptr<FilDuBus> fil_;
};

} // namespace bureau
