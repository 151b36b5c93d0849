// SPDX-License-Identifier: MPL-2.0
#include "Curseur.h"

#include "modele/Frontieres.h"

#include <algorithm>

using namespace com::sun::star;

namespace extension {

std::size_t CompteLesPas(std::u16string_view lettres) noexcept {
    std::size_t nombre = 0;
    for (std::size_t i = 0; i < lettres.size(); ++i) {
        nombre += i > 0 && compagnon::CoupePaire(lettres, i) ? 0 : 1;
    }
    return nombre;
}

void Avance(uno::Reference<text::XTextCursor> const& curseur, std::size_t nombre, bool etend) {
    while (nombre > 0) {
        std::size_t const fois = std::min<std::size_t>(nombre, 30'000);
        curseur->goRight(static_cast<sal_Int16>(fois), etend);
        nombre -= fois;
    }
}

uno::Reference<text::XTextCursor> PlaceCurseur(uno::Reference<text::XText> const& texte,
                                               uno::Reference<text::XTextRange> const& depart,
                                               std::size_t nombre) {
    uno::Reference<text::XTextCursor> const curseur(
        texte->createTextCursorByRange(depart->getStart()), uno::UNO_SET_THROW);
    Avance(curseur, nombre, false);
    return curseur;
}

} // namespace extension
