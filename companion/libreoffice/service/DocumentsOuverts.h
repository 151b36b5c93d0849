// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "ClesVivantes.h"
#include "document/DocumentOuvert.h"

#include <com/sun/star/frame/XDesktop.hpp>
#include <com/sun/star/uno/XComponentContext.hpp>

#include <memory>
#include <string>
#include <vector>

namespace extension {

/// The documents open in this office that have text to proof and a window. Main thread only.
class DocumentsOuverts {
  public:
    explicit DocumentsOuverts(css::uno::Reference<css::uno::XComponentContext> const& contexte);

    /// All of them, the one in front first; those met for the first time get a key.
    std::vector<std::shared_ptr<DocumentOuvert>> Tous();
    /// The one of that key, or null.
    std::shared_ptr<DocumentOuvert> TrouveParCle(std::string const& cle);
    /// The one that holds the zone, or null. Zone keys start with their document's.
    std::shared_ptr<DocumentOuvert> TrouveParZone(std::string const& cleDeZone);
    /// The one of that model, or null when it is not of a kind that is served.
    std::shared_ptr<DocumentOuvert>
    ParModele(css::uno::Reference<css::frame::XModel> const& modele);

    std::shared_ptr<ClesVivantes const> DonneVivantes() const noexcept { return vivantes_; }

  private:
    struct Entree {
        css::uno::Reference<css::uno::XInterface> identite;
        std::shared_ptr<DocumentOuvert> document;
    };

    void RetireLesFermes();

    css::uno::Reference<css::frame::XDesktop> bureau_;
    std::vector<Entree> ouverts_;
    std::shared_ptr<ClesVivantes> vivantes_ = std::make_shared<ClesVivantes>();
    unsigned dernier_ = 0;
};

} // namespace extension
