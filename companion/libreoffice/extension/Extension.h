// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "bus/FilDuBus.h"
#include "service/Service.h"

#include <com/sun/star/frame/XModel.hpp>
#include <com/sun/star/uno/XComponentContext.hpp>

#include <cstddef>
#include <memory>
#include <string>

namespace extension {

/// The extension in one running office.
class Extension {
  public:
    /// Starts it unless it runs, or the office is on its way out. Any thread; waits for nothing.
    static void Demarre(css::uno::Reference<css::uno::XComponentContext> const& contexte);
    /// Ends it for good: calls under way are answered with an error. Never waits for a document.
    static void Arrete();
    /// The running one, or null. Main thread.
    static Extension* Donne();

    /// Whole identifier of a document; empty when it is not of a kind that is served.
    std::string DonneIdentifiant(css::uno::Reference<css::frame::XModel> const& modele);
    EtatDuBus DonneEtat() const { return fil_->DonneEtat(); }
    std::string const& DonneNomDuService() const noexcept { return fil_->DonneNom(); }
    /// How many documents are served now. Main thread.
    std::size_t NombreDeDocuments() { return service_->LesDocuments().Tous().size(); }

  private:
    explicit Extension(css::uno::Reference<css::uno::XComponentContext> const& contexte);

    std::shared_ptr<Service> service_;
    std::shared_ptr<Appels> appels_;
    std::unique_ptr<FilDuBus> fil_;
};

} // namespace extension
