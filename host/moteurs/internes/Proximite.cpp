// SPDX-License-Identifier: MPL-2.0
#include "Proximite.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace hote {

int DonneDistance(QString const& un, QString const& autre, int plafond) {
    if (std::abs(un.size() - autre.size()) > plafond) {
        return plafond + 1;
    }
    auto const largeur = static_cast<std::size_t>(autre.size()) + 1;
    std::vector<int> avantDerniere(largeur);
    std::vector<int> derniere(largeur);
    std::vector<int> ligne(largeur);
    for (std::size_t j = 0; j < largeur; ++j) {
        derniere[j] = static_cast<int>(j);
    }
    for (int i = 1; i <= un.size(); ++i) {
        ligne[0] = i;
        for (int j = 1; j <= autre.size(); ++j) {
            auto const k = static_cast<std::size_t>(j);
            int const cout = un.at(i - 1) == autre.at(j - 1) ? 0 : 1;
            ligne[k] = std::min({derniere[k] + 1, ligne[k - 1] + 1, derniere[k - 1] + cout});
            bool const echange = i > 1 && j > 1 && un.at(i - 1) == autre.at(j - 2) &&
                                 un.at(i - 2) == autre.at(j - 1);
            if (echange) {
                ligne[k] = std::min(ligne[k], avantDerniere[k - 2] + 1);
            }
        }
        std::swap(avantDerniere, derniere);
        std::swap(derniere, ligne);
    }
    return std::min(derniere[largeur - 1], plafond + 1);
}

QString OteMarques(QString const& mot) {
    QString nu;
    for (QChar const unite : mot.normalized(QString::NormalizationForm_D)) {
        if (!unite.isMark()) {
            nu += unite.toLower();
        }
    }
    return nu;
}

} // namespace hote
