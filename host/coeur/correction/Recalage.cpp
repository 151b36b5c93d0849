// SPDX-License-Identifier: MPL-2.0
#include "Recalage.h"

#include <QHash>

#include <algorithm>

namespace hote {

namespace {

/// The rank of each text of [debut, fin), -1 for one that stands there more than once.
QHash<QString, int> DonneRangs(std::vector<QString> const& textes, int debut, int fin) {
    QHash<QString, int> rangs;
    for (int rang = debut; rang < fin; ++rang) {
        QString const& texte = textes[static_cast<std::size_t>(rang)];
        rangs.insert(texte, rangs.contains(texte) ? -1 : rang);
    }
    return rangs;
}

} // namespace

Recalage::Recalage(std::vector<QString> const& anciens, std::vector<QString> const& nouveaux)
    : places_(anciens.size(), -1) {
    auto const ecart =
        std::mismatch(anciens.begin(), anciens.end(), nouveaux.begin(), nouveaux.end());
    auto const reste = std::min(anciens.end() - ecart.first, nouveaux.end() - ecart.second);
    auto const ecartFinal =
        std::mismatch(anciens.rbegin(), anciens.rbegin() + reste, nouveaux.rbegin());
    int const debut = static_cast<int>(ecart.first - anciens.begin());
    int const finAncien = static_cast<int>(anciens.rend() - ecartFinal.first);
    int const finNouveau = static_cast<int>(nouveaux.rend() - ecartFinal.second);
    int const nombre = static_cast<int>(anciens.size());
    inchange_ = debut == nombre && nouveaux.size() == anciens.size();

    for (int rang = 0; rang < debut; ++rang) {
        places_[rang] = rang;
    }
    for (int rang = finAncien; rang < nombre; ++rang) {
        places_[rang] = rang + finNouveau - finAncien;
    }
    TrouveTextesUniques(anciens, nouveaux, debut, finAncien, finNouveau);
    int precedent = debut - 1;
    for (int rang = debut; rang < finAncien; ++rang) {
        if (places_[rang] < 0) {
            continue;
        }
        CombleEntre(precedent, rang, places_[rang]);
        precedent = rang;
    }
    CombleEntre(precedent, finAncien, finNouveau);
}

std::optional<int> Recalage::Retrouve(int rang) const {
    int const place = places_[static_cast<std::size_t>(rang)];
    return place >= 0 ? std::optional<int>(place) : std::nullopt;
}

void Recalage::TrouveTextesUniques(std::vector<QString> const& anciens,
                                   std::vector<QString> const& nouveaux, int debut, int finAncien,
                                   int finNouveau) {
    auto const rangsAnciens = DonneRangs(anciens, debut, finAncien);
    auto const rangsNouveaux = DonneRangs(nouveaux, debut, finNouveau);
    for (int rang = debut; rang < finAncien; ++rang) {
        QString const& texte = anciens[static_cast<std::size_t>(rang)];
        if (rangsAnciens.value(texte) == rang) {
            places_[rang] = rangsNouveaux.value(texte, -1);
        }
    }
}

void Recalage::CombleEntre(int precedent, int suivant, int placeSuivante) {
    int const placePrecedente = precedent < 0 ? -1 : places_[precedent];
    if (placeSuivante - placePrecedente != suivant - precedent) {
        return;
    }
    for (int rang = precedent + 1; rang < suivant; ++rang) {
        places_[rang] = placePrecedente + rang - precedent;
    }
}

} // namespace hote
