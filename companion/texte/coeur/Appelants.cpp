// SPDX-License-Identifier: MPL-2.0
#include "Appelants.h"

#include <utility>

namespace compagnon {

TexteSuivi* Appelant::Croyance(std::string const& cle, NumeroZone zone) noexcept {
    auto const duDocument = croyances.find(cle);
    if (duDocument == croyances.end()) {
        return nullptr;
    }
    auto const trouvee = duDocument->second.find(zone);
    return trouvee == duDocument->second.end() ? nullptr : &trouvee->second;
}

void Appelants::OublieDocument(std::string const& cle) noexcept {
    for (auto& appelant : appelants_) {
        appelant.second.croyances.erase(cle);
    }
}

void Appelants::OublieLePlusAncien(std::string const& sauf) {
    auto ancien = appelants_.end();
    for (auto candidat = appelants_.begin(); candidat != appelants_.end(); ++candidat) {
        if (candidat->first != sauf &&
            (ancien == appelants_.end() ||
             candidat->second.dernierUsage < ancien->second.dernierUsage)) {
            ancien = candidat;
        }
    }
    if (ancien != appelants_.end()) {
        appelants_.erase(ancien);
    }
}

Appelant& Appelants::Donne(std::string const& nom) {
    if (!Connait(nom) && appelants_.size() >= kMax) {
        OublieLePlusAncien(nom);
    }
    Appelant& appelant = appelants_[nom];
    appelant.dernierUsage = ++horloge_;
    return appelant;
}

void Appelants::Donne(std::string const& nom, std::string const& cle,
                      Appelant::Croyances croyances) {
    Donne(nom).croyances[cle] = std::move(croyances);
    auto const total = [this] {
        std::size_t nombre = 0;
        for (auto const& appelant : appelants_) {
            for (auto const& duDocument : appelant.second.croyances) {
                nombre += duDocument.second.size();
            }
        }
        return nombre;
    };
    while (appelants_.size() > 1 && total() > kCroyancesMax) {
        OublieLePlusAncien(nom);
    }
}

} // namespace compagnon
