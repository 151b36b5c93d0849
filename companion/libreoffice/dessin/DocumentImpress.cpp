// SPDX-License-Identifier: MPL-2.0
#include "DocumentImpress.h"

#include "ParcoursFormes.h"
#include "SelectionDessinee.h"
#include "TexteDeForme.h"

#include <com/sun/star/container/XEnumeration.hpp>
#include <com/sun/star/drawing/XDrawPagesSupplier.hpp>
#include <com/sun/star/lang/XServiceInfo.hpp>
#include <com/sun/star/office/XAnnotationAccess.hpp>
#include <com/sun/star/presentation/XPresentationPage.hpp>

using namespace com::sun::star;

namespace extension {

namespace {

using EndroitPartage = std::shared_ptr<Endroit const>;

EndroitPartage FaisEndroit(Endroit::Genre genre, int numero, EndroitPartage const& autour) {
    return std::make_shared<Endroit const>(Endroit{genre, numero, {}, autour});
}

void ParcoursCommentaires(uno::Reference<drawing::XDrawPage> const& page,
                          FondDeFormes const& fond) {
    uno::Reference<office::XAnnotationAccess> const source(page, uno::UNO_QUERY);
    if (!source.is()) {
        return;
    }
    uno::Reference<office::XAnnotationEnumeration> const suite =
        source->createAnnotationEnumeration();
    for (int numero = 1; suite.is() && suite->hasMoreElements(); ++numero) {
        fond.recueil.Souffle();
        uno::Reference<office::XAnnotation> const commentaire = suite->nextElement();
        uno::Reference<uno::XInterface> const texte(commentaire->getTextRange(), uno::UNO_QUERY);
        if (texte.is()) {
            ParcoursTexteDessine(
                texte, [&] { return TexteDeForme(texte, page, fond.modele, nullptr); },
                FaisEndroit(Endroit::Genre::Commentaire, numero, fond.page), fond.carnet,
                fond.recueil);
        }
    }
}

} // namespace

char const* DocumentImpress::DonneGenre() const {
    uno::Reference<lang::XServiceInfo> const services(DonneModele(), uno::UNO_QUERY);
    return services.is() &&
                   services->supportsService("com.sun.star.presentation.PresentationDocument")
               ? "impress"
               : "draw";
}

void DocumentImpress::ParcoursZones(RecueilDeZones const& recueil) {
    uno::Reference<drawing::XDrawPagesSupplier> const document(DonneModele(), uno::UNO_QUERY_THROW);
    uno::Reference<drawing::XDrawPages> const pages = document->getDrawPages();
    for (sal_Int32 i = 0; i < pages->getCount(); ++i) {
        uno::Reference<drawing::XDrawPage> const page(pages->getByIndex(i), uno::UNO_QUERY_THROW);
        uno::Reference<presentation::XPresentationPage> const diapo(page, uno::UNO_QUERY);
        EndroitPartage const ici =
            FaisEndroit(diapo.is() ? Endroit::Genre::Diapo : Endroit::Genre::Page, i + 1, nullptr);
        int formes = 0;
        FondDeFormes const fond{DonneModele(), Carnet(), recueil, nullptr, ici, formes};
        ParcoursFormes(uno::Reference<drawing::XShapes>(page, uno::UNO_QUERY_THROW), fond);
        ParcoursCommentaires(page, fond);
        if (diapo.is()) { // a drawing has no notes
            int notes = 0;
            ParcoursFormes(
                uno::Reference<drawing::XShapes>(diapo->getNotesPage(), uno::UNO_QUERY_THROW),
                {DonneModele(), Carnet(), recueil, nullptr,
                 FaisEndroit(Endroit::Genre::Notes, 0, ici), notes});
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
