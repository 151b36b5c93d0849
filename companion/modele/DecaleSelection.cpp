// SPDX-License-Identifier: MPL-2.0
#include "DecaleSelection.h"

namespace compagnon {

Intervalle DecaleSelection(Intervalle selection, Intervalle editee, std::size_t longueur) noexcept {
    std::int32_t const finNouvelle = editee.debut + static_cast<std::int32_t>(longueur);
    std::int32_t const decalage = finNouvelle - editee.fin;
    if (selection.EstVide()) {
        std::int32_t curseur = selection.debut;
        if (curseur >= editee.fin) {
            curseur += decalage;
        } else if (curseur > editee.debut) {
            curseur = finNouvelle;
        }
        return {curseur, curseur};
    }
    if (selection.debut >= editee.fin && (selection.debut > editee.debut || editee.EstVide())) {
        return {selection.debut + decalage, selection.fin + decalage};
    }
    if (selection.fin <= editee.debut) {
        return selection;
    }
    return {selection.debut > editee.debut ? editee.debut : selection.debut,
            selection.fin < editee.fin ? finNouvelle : selection.fin + decalage};
}

} // namespace compagnon
