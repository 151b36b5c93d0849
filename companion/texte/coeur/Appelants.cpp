// SPDX-License-Identifier: MPL-2.0
#include "Appelants.h"

#include <algorithm>

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

Appelant& Appelants::Donne(std::string const& nom) {
    if (!Connait(nom) && appelants_.size() >= kMax) {
        appelants_.erase(std::min_element(appelants_.begin(), appelants_.end(),
                                          [](auto const& a, auto const& b) {
                                              return a.second.dernierUsage < b.second.dernierUsage;
                                          }));
    }
    Appelant& appelant = appelants_[nom];
    appelant.dernierUsage = ++horloge_;
    return appelant;
}

} // namespace compagnon
