// SPDX-License-Identifier: MPL-2.0
#include "PlagesDeStyle.h"

#include "Langues.h"

#include <algorithm>

namespace compagnon {

bool PlagesDeStyle::Ajoute(std::int32_t debut, std::int32_t fin, std::uint16_t style) {
    if (debut >= fin || style == 0) {
        return true;
    }
    if (!plages_.empty()) {
        PlageDeStyle& derniere = plages_.back();
        if (debut < derniere.fin) {
            return false;
        }
        if (debut == derniere.fin && style == derniere.style) {
            derniere.fin = fin;
            return true;
        }
    }
    plages_.push_back({debut, fin, style});
    return true;
}

std::uint16_t PlagesDeStyle::StyleEn(std::int32_t position) const noexcept {
    auto const plage =
        std::upper_bound(plages_.begin(), plages_.end(), position,
                         [](std::int32_t p, PlageDeStyle const& autre) { return p < autre.fin; });
    return plage != plages_.end() && plage->debut <= position ? plage->style : std::uint16_t{0};
}

void PlagesDeStyle::Remplace(Intervalle plage, std::size_t longueur) {
    bool const commeAvant = plage.EstVide() && plage.debut > 0;
    std::uint16_t const style = StyleEn(commeAvant ? plage.debut - 1 : plage.debut);
    auto const ajoutee = static_cast<std::int32_t>(longueur);
    std::int32_t const decalage = ajoutee - (plage.fin - plage.debut);

    PlagesDeStyle suite;
    suite.plages_.reserve(plages_.size() + 2);
    auto ancienne = plages_.cbegin();
    for (; ancienne != plages_.cend() && ancienne->debut < plage.debut; ++ancienne) {
        suite.Ajoute(ancienne->debut, std::min(ancienne->fin, plage.debut), ancienne->style);
        if (ancienne->fin > plage.fin) {
            break; // it surrounds the edit: its tail still follows
        }
    }
    suite.Ajoute(plage.debut, plage.debut + ajoutee, style);
    for (; ancienne != plages_.cend(); ++ancienne) {
        suite.Ajoute(std::max(ancienne->debut, plage.fin) + decalage, ancienne->fin + decalage,
                     ancienne->style);
    }
    plages_ = std::move(suite.plages_);
}

std::vector<PlageDeStyle> RelativesA(std::uint8_t principale,
                                     std::vector<PlageDeStyle> const& plages) {
    PlagesDeStyle relatives;
    for (PlageDeStyle const& plage : plages) {
        bool const estPrincipale = contrat::DonneNumeroDuStyle(plage.style) == principale;
        relatives.Ajoute(plage.debut, plage.fin,
                         estPrincipale ? plage.style & ~contrat::kMasqueLangue : plage.style);
    }
    return relatives.Donne();
}

} // namespace compagnon
