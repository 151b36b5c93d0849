// SPDX-License-Identifier: MPL-2.0
#include "DocumentWriter.h"

#include "ParcoursWriter.h"

#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/text/XTextCursor.hpp>
#include <com/sun/star/text/XTextRangeCompare.hpp>

#include <utility>

using namespace com::sun::star;

namespace bureau {

namespace {

/// The paragraph's own object, the one that enumerations give too.
uno::Reference<uno::XInterface> ParagrapheEn(uno::Reference<text::XTextRange> const& position) {
    uno::Reference<beans::XPropertySet> const proprietes(position, uno::UNO_QUERY);
    uno::Reference<uno::XInterface> paragraphe;
    if (proprietes.is()) {
        proprietes->getPropertyValue("TextParagraph") >>= paragraphe;
    }
    return uno::Reference<uno::XInterface>(paragraphe, uno::UNO_QUERY);
}

} // namespace

DocumentWriter::DocumentWriter(uno::Reference<frame::XModel> const& modele, std::string cle)
    : DocumentOuvert(modele, std::move(cle))
    , fond_(std::make_shared<FondWriter>(FondWriter{modele, {}, Suppressions(modele)})) {}

void DocumentWriter::ParcoursZones(Recueil const& recueil) {
    ParcoursWriter(fond_, Carnet(), recueil).Parcours();
}

std::optional<DocumentOuvert::Selection> DocumentWriter::LisSelection() {
    uno::Reference<container::XIndexAccess> const choix(Modele()->getCurrentSelection(),
                                                        uno::UNO_QUERY);
    if (!choix.is() || choix->getCount() == 0) {
        return std::nullopt;
    }
    uno::Reference<text::XTextRange> const etendue(choix->getByIndex(0), uno::UNO_QUERY);
    uno::Reference<text::XText> const texte =
        etendue.is() ? etendue->getText() : uno::Reference<text::XText>();
    if (!texte.is()) {
        return std::nullopt; // a shape or several cells
    }
    Selection selection;
    selection.debut.set(texte->createTextCursorByRange(etendue->getStart()).get());
    selection.fin.set(texte->createTextCursorByRange(etendue->getEnd()).get());
    // A selection made backwards has its point first.
    uno::Reference<text::XTextRangeCompare> const ordre(texte, uno::UNO_QUERY_THROW);
    if (ordre->compareRegionStarts(selection.debut, selection.fin) < 0) {
        std::swap(selection.debut, selection.fin);
    }
    selection.objetDebut = ParagrapheEn(selection.debut);
    selection.objetFin = ParagrapheEn(selection.fin);
    if (!selection.objetDebut.is() || !selection.objetFin.is()) {
        return std::nullopt;
    }
    return selection;
}

} // namespace bureau
