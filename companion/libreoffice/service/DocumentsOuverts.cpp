// SPDX-License-Identifier: MPL-2.0
#include "DocumentsOuverts.h"

#include "calc/DocumentCalc.h"
#include "commun/Hasard.h"
#include "commun/Objets.h"
#include "dessin/DocumentImpress.h"
#include "writer/DocumentWriter.h"

#include <com/sun/star/beans/PropertyValue.hpp>
#include <com/sun/star/container/XEnumeration.hpp>
#include <com/sun/star/container/XEnumerationAccess.hpp>
#include <com/sun/star/drawing/XMasterPagesSupplier.hpp>
#include <com/sun/star/frame/XController.hpp>
#include <com/sun/star/lang/XComponent.hpp>
#include <com/sun/star/lang/XEventListener.hpp>
#include <com/sun/star/lang/XMultiComponentFactory.hpp>
#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>
#include <com/sun/star/text/XTextDocument.hpp>
#include <cppuhelper/implbase1.hxx>

#include <algorithm>
#include <utility>

using namespace com::sun::star;

namespace extension {

namespace {

/// Takes a document's key out as soon as the document goes, whatever thread closes it.
class Veilleur : public cppu::WeakImplHelper1<lang::XEventListener> {
  public:
    Veilleur(std::shared_ptr<ClesVivantes> vivantes, std::string cle)
        : vivantes_(std::move(vivantes))
        , cle_(std::move(cle)) {}

    void SAL_CALL disposing(lang::EventObject const& /*source*/) override {
        vivantes_->Retire(cle_);
    }

  private:
    std::shared_ptr<ClesVivantes> vivantes_;
    std::string cle_;
};

bool EstCache(uno::Reference<frame::XModel> const& modele) {
    if (!modele->getCurrentController().is()) {
        return true;
    }
    for (beans::PropertyValue const& argument : modele->getArgs()) {
        bool cache = false;
        if (argument.Name == "Hidden" && (argument.Value >>= cache) && cache) {
            return true;
        }
    }
    return false;
}

std::shared_ptr<DocumentOuvert> Ouvre(uno::Reference<frame::XModel> const& modele,
                                      std::string const& cle) {
    if (uno::Reference<text::XTextDocument>(modele, uno::UNO_QUERY).is()) {
        return std::make_shared<DocumentWriter>(modele, cle);
    }
    if (uno::Reference<sheet::XSpreadsheetDocument>(modele, uno::UNO_QUERY).is()) {
        return std::make_shared<DocumentCalc>(modele, cle);
    }
    if (uno::Reference<drawing::XMasterPagesSupplier>(modele, uno::UNO_QUERY).is()) {
        return std::make_shared<DocumentImpress>(modele, cle);
    }
    return nullptr;
}

} // namespace

DocumentsOuverts::DocumentsOuverts(uno::Reference<uno::XComponentContext> const& contexte)
    : bureau_(contexte->getServiceManager()->createInstanceWithContext("com.sun.star.frame.Desktop",
                                                                       contexte),
              uno::UNO_QUERY_THROW) {}

void DocumentsOuverts::RetireLesFermes() {
    ouverts_.erase(std::remove_if(ouverts_.begin(), ouverts_.end(),
                                  [&](Entree const& entree) {
                                      return !vivantes_->Contient(entree.document->DonneCle());
                                  }),
                   ouverts_.end());
}

std::shared_ptr<DocumentOuvert>
DocumentsOuverts::ParModele(uno::Reference<frame::XModel> const& modele) {
    RetireLesFermes();
    uno::Reference<uno::XInterface> const identite(modele, uno::UNO_QUERY);
    for (Entree const& entree : ouverts_) {
        if (entree.identite.get() == identite.get()) {
            return entree.document;
        }
    }
    // The random half keeps an identifier of an earlier run of the office from naming another
    // document in this one.
    std::string const cle = "d" + std::to_string(dernier_ + 1) + "_" + HasardHexadecimal();
    std::shared_ptr<DocumentOuvert> document = Ouvre(modele, cle);
    if (!document) {
        return nullptr;
    }
    ++dernier_;
    vivantes_->Ajoute(cle);
    uno::Reference<lang::XComponent> const composant(modele, uno::UNO_QUERY_THROW);
    composant->addEventListener(new Veilleur(vivantes_, cle));
    ouverts_.push_back({identite, document});
    return document;
}

std::vector<std::shared_ptr<DocumentOuvert>> DocumentsOuverts::Tous() {
    std::vector<std::shared_ptr<DocumentOuvert>> tous;
    Objets vus;
    uno::Reference<frame::XModel> const devant(bureau_->getCurrentComponent(), uno::UNO_QUERY);
    uno::Reference<container::XEnumeration> const suite =
        bureau_->getComponents()->createEnumeration();
    while (suite->hasMoreElements()) {
        uno::Reference<frame::XModel> const modele(suite->nextElement(), uno::UNO_QUERY);
        // A document in several windows comes once for each.
        if (!modele.is() || EstCache(modele) || !vus.Ajoute(modele)) {
            continue;
        }
        std::shared_ptr<DocumentOuvert> document = ParModele(modele);
        if (document) {
            tous.insert(modele == devant ? tous.begin() : tous.end(), std::move(document));
        }
    }
    return tous;
}

std::shared_ptr<DocumentOuvert> DocumentsOuverts::TrouveParCle(std::string const& cle) {
    RetireLesFermes();
    for (Entree const& entree : ouverts_) {
        if (entree.document->DonneCle() == cle) {
            return entree.document;
        }
    }
    return nullptr;
}

std::shared_ptr<DocumentOuvert> DocumentsOuverts::TrouveParZone(std::string const& cleDeZone) {
    return TrouveParCle(cleDeZone.substr(0, cleDeZone.find(':')));
}

} // namespace extension
