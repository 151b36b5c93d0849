// SPDX-License-Identifier: MPL-2.0
#include "Proximite.h"

#include <algorithm>
#include <vector>

namespace hote {

namespace {

constexpr int kLettre = 2;
constexpr int kMarque = 1;

QChar OteMarque(QChar lettre) {
    QString const decomposee = QString(lettre).normalized(QString::NormalizationForm_D);
    return decomposee.isEmpty() ? lettre : decomposee.at(0);
}

int DonneCout(QChar un, QChar autre) {
    if (un == autre) {
        return 0;
    }
    return OteMarque(un) == OteMarque(autre) ? kMarque : kLettre;
}

} // namespace

int DonneDistance(QString const& un, QString const& autre) {
    auto const largeur = static_cast<std::size_t>(autre.size()) + 1;
    std::vector<int> avantDerniere(largeur);
    std::vector<int> derniere(largeur);
    std::vector<int> ligne(largeur);
    for (std::size_t j = 0; j < largeur; ++j) {
        derniere[j] = static_cast<int>(j) * kLettre;
    }
    for (int i = 1; i <= un.size(); ++i) {
        ligne[0] = i * kLettre;
        for (int j = 1; j <= autre.size(); ++j) {
            auto const k = static_cast<std::size_t>(j);
            ligne[k] = std::min({derniere[k] + kLettre, ligne[k - 1] + kLettre,
                                 derniere[k - 1] + DonneCout(un.at(i - 1), autre.at(j - 1))});
            bool const echange = i > 1 && j > 1 && un.at(i - 1) == autre.at(j - 2) &&
                                 un.at(i - 2) == autre.at(j - 1);
            if (echange) {
                ligne[k] = std::min(ligne[k], avantDerniere[k - 2] + kLettre);
            }
        }
        std::swap(avantDerniere, derniere);
        std::swap(derniere, ligne);
    }
    return derniere[largeur - 1];
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
