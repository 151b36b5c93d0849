// SPDX-License-Identifier: MPL-2.0
#include "SelectionDite.h"

#include "ErreurDuService.h"
#include "Messages.h"
#include "modele/Frontieres.h"

namespace compagnon {

Intervalle DecaleBornes(Intervalle plage, std::int32_t deltaDebut, std::int32_t deltaFin,
                        std::u16string_view texte) {
    std::int64_t const debut = std::int64_t{plage.debut} + deltaDebut;
    std::int64_t const fin = std::int64_t{plage.fin} + deltaFin;
    if (debut < 0 || debut > fin || fin > static_cast<std::int64_t>(texte.size()) ||
        CoupePaire(texte, static_cast<std::size_t>(debut)) ||
        CoupePaire(texte, static_cast<std::size_t>(fin))) {
        throw ErreurDuService(contrat::Erreur::SelectionImpossible,
                              Dis({"elle sortirait de son paragraphe, ou couperait un caractère",
                                   "it would leave its paragraph, or part a character"}));
    }
    return {static_cast<std::int32_t>(debut), static_cast<std::int32_t>(fin)};
}

} // namespace compagnon
