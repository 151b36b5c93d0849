// SPDX-License-Identifier: MPL-2.0
#include "DocumentImpress.h"

#include "ParcoursFormes.h"
#include "SelectionDessinee.h"
#include "TexteDeForme.h"

#include <com/sun/star/container/XEnumeration.hpp>
#include <com/sun/star/drawing/XDrawPagesSupplier.hpp>
#include <com/sun/star/office/XAnnotationAccess.hpp>
#include <com/sun/star/presentation/XPresentationPage.hpp>

using namespace com::sun::star;

namespace extension {

namespace {

void ParcoursCommentaires(uno::Reference<drawing::XDrawPage> const& page,
                          FondDeFormes const& fond) {
    uno::Reference<office::XAnnotationAccess> const source(page, uno::UNO_QUERY);
    if (!source.is()) {
        return;
    }
    uno::Reference<office::XAnnotationEnumeration> const suite =
        source->createAnnotationEnumeration();
    while (suite.is() && suite->hasMoreElements()) {
        uno::Reference<office::XAnnotation> const commentaire = suite->nextElement();
        uno::Reference<uno::XInterface> const texte(commentaire->getTextRange(), uno::UNO_QUERY);
        if (texte.is()) {
            ParcoursTexteDessine(
                texte, [&] { return TexteDeForme(texte, page, fond.modele, nullptr); }, fond.carnet,
                fond.recueil);
        }
    }
}

} // namespace

void DocumentImpress::ParcoursZones(RecueilDeZones const& recueil) {
    FondDeFormes const fond{DonneModele(), Carnet(), recueil, nullptr};
    uno::Reference<drawing::XDrawPagesSupplier> const document(DonneModele(), uno::UNO_QUERY_THROW);
    uno::Reference<drawing::XDrawPages> const pages = document->getDrawPages();
    for (sal_Int32 i = 0; i < pages->getCount(); ++i) {
        uno::Reference<drawing::XDrawPage> const page(pages->getByIndex(i), uno::UNO_QUERY_THROW);
        ParcoursFormes(uno::Reference<drawing::XShapes>(page, uno::UNO_QUERY_THROW), fond);
        ParcoursCommentaires(page, fond);
        uno::Reference<presentation::XPresentationPage> const diapo(page, uno::UNO_QUERY);
        if (diapo.is()) { // a drawing has no notes
            ParcoursFormes(
                uno::Reference<drawing::XShapes>(diapo->getNotesPage(), uno::UNO_QUERY_THROW),
                fond);
        }
    }
}

std::unique_ptr<SelectionVue> DocumentImpress::LisSelectionDuBureau() {
    uno::Reference<uno::XInterface> const selection = DonneModele()->getCurrentSelection();
    // While a person edits a text: the range that is selected in it.
    uno::Reference<text::XTextRange> const plage(selection, uno::UNO_QUERY);
    return plage.is() ? SelectionDansUneForme(plage) : SelectionDeFormes(selection);
}

} // namespace extension
