// SPDX-License-Identifier: MPL-2.0
#include "Envois.h"

#include "Alignement.h"

namespace hote {

void Envois::Verifie(Recalage const& recalage, std::vector<QString> const& anciens,
                     std::vector<QString> const& nouveaux, Bilan& bilan) {
    for (std::size_t i = 0; i < envois_.size();) {
        int const zone = envois_[i].zone;
        auto const nouvelle = recalage.Retrouve(zone);
        bool const pareille = nouvelle && anciens[zone] == nouveaux[*nouvelle];
        std::optional<Alignement> alignement;
        if (nouvelle && !pareille)
            alignement.emplace(anciens[zone], nouveaux[*nouvelle]);
        for (; i < envois_.size() && envois_[i].zone == zone; ++i) {
            Envoi const& envoi = envois_[i];
            bool const montree =
                pareille || (alignement && alignement->Retrouve(envoi.debut, envoi.fin));
            bilan.fautes[envoi.rang].etat = montree ? EtatFaute::Corrigee : EtatFaute::Refusee;
        }
    }
    envois_.clear();
}

void Envois::Abandonne(Bilan& bilan) {
    for (Envoi const& envoi : envois_)
        bilan.fautes[envoi.rang].etat = EtatFaute::NonVerifiee;
    envois_.clear();
}

} // namespace hote
