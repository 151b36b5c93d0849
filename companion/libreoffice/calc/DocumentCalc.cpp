// SPDX-License-Identifier: MPL-2.0
#include "DocumentCalc.h"

#include "SelectionCalc.h"

#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>
#include <com/sun/star/util/XProtectable.hpp>

using namespace com::sun::star;

namespace extension {

bool DocumentCalc::PeutEtreProtege() const {
    uno::Reference<sheet::XSpreadsheetDocument> const document(DonneModele(), uno::UNO_QUERY_THROW);
    uno::Reference<container::XIndexAccess> const feuilles(document->getSheets(),
                                                           uno::UNO_QUERY_THROW);
    for (sal_Int32 i = 0; i < feuilles->getCount(); ++i) {
        uno::Reference<util::XProtectable> const feuille(feuilles->getByIndex(i), uno::UNO_QUERY);
        if (feuille.is() && feuille->isProtected()) {
            return true;
        }
    }
    return false;
}

void DocumentCalc::ParcoursZones(RecueilDeZones const& recueil) {
    cellules_ = ParcoursCalc(DonneModele(), Carnet(), cellules_, recueil).Parcours();
}

std::unique_ptr<SelectionVue> DocumentCalc::LisSelectionDuBureau() {
    return LisSelectionCalc(DonneModele(), cellules_);
}

} // namespace extension
