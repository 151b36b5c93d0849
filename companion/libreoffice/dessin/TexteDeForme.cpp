// SPDX-License-Identifier: MPL-2.0
#include "TexteDeForme.h"

#include "EditionEnCours.h"
#include "document/SelectionDuBureau.h"
#include "partage/ErreurDuService.h"

#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/container/XChild.hpp>
#include <com/sun/star/drawing/XDrawPage.hpp>
#include <com/sun/star/drawing/XDrawView.hpp>
#include <com/sun/star/drawing/XShape.hpp>
#include <com/sun/star/drawing/XShapes.hpp>
#include <com/sun/star/office/XAnnotationAccess.hpp>
#include <com/sun/star/table/XTable.hpp>

#include <utility>

using namespace com::sun::star;

namespace extension {

namespace {

class Forme : public TexteDessine {
  public:
    Forme(uno::Reference<uno::XInterface> const& texte,
          uno::Reference<uno::XInterface> const& porteur,
          uno::Reference<frame::XModel> const& modele, std::shared_ptr<Contenant const> contenant)
        : TexteDessine(texte, modele, std::move(contenant))
        , porteur_(porteur) {}

    bool SAnnuleSeul() const override { return false; }

    uno::Reference<uno::XInterface> DonnePorteur() const override { return porteur_; }

    bool EstEnFrappe() const override {
        uno::Reference<uno::XInterface> const selection = DonneModele()->getCurrentSelection();
        uno::Reference<text::XTextRange> const plage(selection, uno::UNO_QUERY);
        if (plage.is()) {
            return plage->getText() == DonneObjet();
        }
        // Without a selection in the text the office shows the shape alone as selected.
        uno::Reference<drawing::XShapes> const formes(selection, uno::UNO_QUERY);
        return formes.is() && formes->getCount() == 1 &&
               uno::Reference<uno::XInterface>(formes->getByIndex(0), uno::UNO_QUERY) == porteur_ &&
               EstEnTrainDeTaper(DonneModele()->getCurrentController(), Frappe::DansUneForme);
    }

    void Selectionne() override {
        uno::Reference<drawing::XDrawPage> const page(porteur_, uno::UNO_QUERY);
        if (page.is()) {
            uno::Reference<drawing::XDrawView> const pages(DonneModele()->getCurrentController(),
                                                           uno::UNO_QUERY_THROW);
            pages->setCurrentPage(page);
        } else {
            SelectionneDans(DonneModele(), uno::Any(porteur_));
        }
    }

  protected:
    uno::Reference<text::XText> DonneTexte() const override {
        if (!EstEncoreLa()) {
            throw compagnon::ErreurDuService(contrat::Erreur::ZoneInconnue);
        }
        return uno::Reference<text::XText>(DonneObjet(), uno::UNO_QUERY_THROW);
    }

  private:
    /// What was deleted lives on among the undo steps, where it still reads and writes.
    bool EstEncoreLa() const {
        uno::Reference<office::XAnnotationAccess> const page(porteur_, uno::UNO_QUERY);
        if (page.is()) {
            return EstUnCommentaireDe(page);
        }
        uno::Reference<uno::XInterface> const forme(
            uno::Reference<drawing::XShape>(DonneObjet(), uno::UNO_QUERY).is() ? DonneObjet()
                                                                               : porteur_);
        uno::Reference<container::XChild> const enfant(forme, uno::UNO_QUERY);
        return (!enfant.is() || enfant->getParent().is()) &&
               (forme == DonneObjet() || EstUneCelluleDe(forme));
    }

    bool EstUnCommentaireDe(uno::Reference<office::XAnnotationAccess> const& page) const {
        uno::Reference<office::XAnnotationEnumeration> const suite =
            page->createAnnotationEnumeration();
        while (suite.is() && suite->hasMoreElements()) {
            if (suite->nextElement()->getTextRange() == DonneObjet()) {
                return true;
            }
        }
        return false;
    }

    bool EstUneCelluleDe(uno::Reference<uno::XInterface> const& forme) const {
        uno::Reference<beans::XPropertySet> const proprietes(forme, uno::UNO_QUERY_THROW);
        uno::Reference<table::XTable> tableau;
        proprietes->getPropertyValue("Model") >>= tableau;
        for (sal_Int32 ligne = 0; tableau.is() && ligne < tableau->getRowCount(); ++ligne) {
            for (sal_Int32 colonne = 0; colonne < tableau->getColumnCount(); ++colonne) {
                if (tableau->getCellByPosition(colonne, ligne) == DonneObjet()) {
                    return true;
                }
            }
        }
        return false;
    }

    uno::Reference<uno::XInterface> porteur_;
};

} // namespace

std::shared_ptr<TexteDessine> TexteDeForme(uno::Reference<uno::XInterface> const& texte,
                                           uno::Reference<uno::XInterface> const& porteur,
                                           uno::Reference<frame::XModel> const& modele,
                                           std::shared_ptr<Contenant const> contenant) {
    return std::make_shared<Forme>(texte, porteur, modele, std::move(contenant));
}

} // namespace extension
