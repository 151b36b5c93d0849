// SPDX-License-Identifier: MPL-2.0
#include "Envois.h"

#include "Alignement.h"

namespace hote {

void Envois::Verifie(Recalage const& recalage, std::vector<QString> const& anciens,
                     std::vector<QString> const& nouveaux, Bilan& bilan) {
    for (auto const& [rang, zone] : zones_) {
        auto const nouveau = recalage.Retrouve(rang);
        auto const faits = nouveau ? DonneFaits(zone, anciens[rang], nouveaux[*nouveau])
                                   : std::vector<bool>(zone.rangs.size(), false);
        for (std::size_t i = 0; i < faits.size(); ++i) {
            bilan.fautes[zone.rangs[i]].etat = faits[i] ? EtatFaute::Corrigee : EtatFaute::Refusee;
        }
    }
    zones_.clear();
}

void Envois::Abandonne(Bilan& bilan) {
    for (auto const& [rang, zone] : zones_) {
        for (std::size_t faute : zone.rangs) {
            bilan.fautes[faute].etat = EtatFaute::NonVerifiee;
        }
    }
    zones_.clear();
}

std::vector<bool> Envois::DonneFaits(Zone const& zone, QString const& cru, QString const& reel) {
    if (cru == reel) {
        return std::vector<bool>(zone.rangs.size(), true);
    }
    if (auto const faits = Explique(cru, zone.remplacements, reel)) {
        return *faits;
    }
    // Somebody wrote in it meanwhile.
    std::vector<bool> faits;
    Alignement const alignement(cru, reel);
    for (Remplacement const& r : zone.remplacements) {
        faits.push_back(alignement.Retrouve(r.debut, r.fin).has_value());
    }
    return faits;
}

} // namespace hote
