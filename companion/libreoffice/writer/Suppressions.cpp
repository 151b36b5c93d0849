// SPDX-License-Identifier: MPL-2.0
#include "Suppressions.h"

#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/container/XEnumeration.hpp>
#include <com/sun/star/container/XEnumerationAccess.hpp>
#include <com/sun/star/lang/IllegalArgumentException.hpp>
#include <com/sun/star/text/XTextRangeCompare.hpp>

#include <utility>

using namespace com::sun::star;

namespace extension {

int Suppressions::OuvertesAuDebut(uno::Reference<text::XTextRange> const& paragraphe,
                                  uno::Reference<text::XText> const& texte) const {
    uno::Reference<container::XEnumerationAccess> const toutes =
        modele_.is() ? modele_->getRedlines() : uno::Reference<container::XEnumerationAccess>();
    if (!toutes.is() || !toutes->hasElements()) {
        return 0;
    }
    uno::Reference<text::XTextRangeCompare> const ordre(texte, uno::UNO_QUERY_THROW);
    uno::Reference<text::XTextRange> const ici = paragraphe->getStart();
    uno::Reference<container::XEnumeration> const suite = toutes->createEnumeration();
    int ouvertes = 0;
    while (suite->hasMoreElements()) {
        uno::Reference<beans::XPropertySet> const marque(suite->nextElement(),
                                                         uno::UNO_QUERY_THROW);
        rtl::OUString nature;
        marque->getPropertyValue("RedlineType") >>= nature;
        uno::Reference<text::XTextRange> debut;
        uno::Reference<text::XTextRange> fin;
        marque->getPropertyValue("RedlineStart") >>= debut;
        marque->getPropertyValue("RedlineEnd") >>= fin;
        if (nature != "Delete" || !debut.is() || !fin.is()) {
            continue;
        }
        try {
            // One that was made backwards is told with its end first.
            if (ordre->compareRegionStarts(debut, fin) < 0) {
                std::swap(debut, fin);
            }
            if (ordre->compareRegionStarts(debut->getStart(), ici) > 0 &&
                ordre->compareRegionStarts(ici, fin->getStart()) >= 0) {
                ++ouvertes;
            }
        } catch (lang::IllegalArgumentException const&) {
            continue; // in another text: a note, a cell
        }
    }
    return ouvertes;
}

} // namespace extension
