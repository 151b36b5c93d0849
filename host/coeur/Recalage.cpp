// SPDX-License-Identifier: MPL-2.0
#include "Recalage.h"

#include <algorithm>

namespace hote {

Recalage::Recalage(std::vector<QString> const& anciens, std::vector<QString> const& nouveaux)
    : anciens_(anciens)
    , decalage_(static_cast<int>(nouveaux.size()) - static_cast<int>(anciens.size())) {
    auto const ecart =
        std::mismatch(anciens.begin(), anciens.end(), nouveaux.begin(), nouveaux.end());
    debut_ = static_cast<int>(ecart.first - anciens.begin());
    auto const reste = std::min(anciens.end() - ecart.first, nouveaux.end() - ecart.second);
    auto const ecartFinal =
        std::mismatch(anciens.rbegin(), anciens.rbegin() + reste, nouveaux.rbegin());
    fin_ = static_cast<int>(anciens.rend() - ecartFinal.first);
    for (int rang = debut_; rang < fin_ + decalage_; ++rang) {
        QString const& texte = nouveaux[static_cast<std::size_t>(rang)];
        rangs_.insert(texte, rangs_.contains(texte) ? -1 : rang);
    }
}

std::optional<int> Recalage::Retrouve(int rang) const {
    if (rang < debut_)
        return rang;
    if (rang >= fin_)
        return rang + decalage_;
    int const trouve = rangs_.value(anciens_[static_cast<std::size_t>(rang)], -1);
    if (trouve >= 0)
        return trouve;
    if (decalage_ == 0)
        return rang;
    return std::nullopt;
}

bool Recalage::RienNeChange() const noexcept {
    return decalage_ == 0 && debut_ == static_cast<int>(anciens_.size());
}

} // namespace hote
