// SPDX-License-Identifier: MPL-2.0
#include "Alignement.h"

#include <algorithm>
#include <cstdint>

namespace hote {

namespace {

constexpr std::int64_t kCasesMax = 4'000'000; // of 2 bytes each

bool EstDeMot(QChar unite) {
    return unite.isLetterOrNumber() || unite.isMark() || unite.isSurrogate() ||
           unite.unicode() == 0xAD;
}

} // namespace

Alignement::Alignement(QString const& ancien, QString const& nouveau)
    : anciens_(Decoupe(ancien))
    , nouveaux_(Decoupe(nouveau)) {
    Apparie(ancien, nouveau);
}

std::optional<int> Alignement::Retrouve(int debut, int fin) const {
    // An empty range is held by the pieces on both sides of it.
    int const gauche = debut == fin ? debut - 1 : debut;
    int const droite = debut == fin ? fin + 1 : fin;
    auto const premier =
        std::upper_bound(anciens_.begin(), anciens_.end(), gauche,
                         [](int position, Morceau const& m) { return position < m.fin; });
    auto dernier = premier;
    for (; dernier != anciens_.end() && dernier->debut < droite; ++dernier) {
        int const attendu = premier->correspondant + static_cast<int>(dernier - premier);
        if (dernier->correspondant < 0 || dernier->correspondant != attendu) {
            return std::nullopt;
        }
    }
    if (dernier == premier) {
        return anciens_.empty() && nouveaux_.empty() ? std::optional<int>(0) : std::nullopt;
    }
    auto const rang = static_cast<std::size_t>(premier - anciens_.begin());
    auto const rangDernier = static_cast<std::size_t>(dernier - anciens_.begin()) - 1;
    if (!EstAppuye(rang, rangDernier)) {
        return std::nullopt;
    }
    return nouveaux_[premier->correspondant].debut + debut - premier->debut;
}

bool Alignement::EstAppuye(std::size_t premier, std::size_t dernier) const {
    // Both versions' ends are neighbours too.
    int const avant = premier > 0 ? anciens_[premier - 1].correspondant : -1;
    bool const avantConnu = premier == 0 || avant >= 0;
    bool const finAncienne = dernier + 1 == anciens_.size();
    int const apres =
        finAncienne ? static_cast<int>(nouveaux_.size()) : anciens_[dernier + 1].correspondant;
    return (avantConnu && anciens_[premier].correspondant == avant + 1) ||
           apres == anciens_[dernier].correspondant + 1;
}

int Alignement::RetrouveAvant(int position) const {
    int place = 0;
    for (Morceau const& m : anciens_) {
        if (m.fin > position) {
            break;
        }
        if (m.correspondant >= 0) {
            place = nouveaux_[m.correspondant].fin;
        }
    }
    return place;
}

Alignement::Morceaux Alignement::Decoupe(QString const& texte) {
    Morceaux morceaux;
    int const longueur = texte.size();
    for (int debut = 0; debut < longueur;) {
        int fin = debut + 1;
        if (EstDeMot(texte.at(debut))) {
            while (fin < longueur && EstDeMot(texte.at(fin))) {
                ++fin;
            }
        }
        morceaux.push_back({debut, fin, -1});
        debut = fin;
    }
    return morceaux;
}

void Alignement::Apparie(QString const& ancien, QString const& nouveau) {
    auto const pareils = [&](int i, int j) {
        return ancien.midRef(anciens_[i].debut, anciens_[i].fin - anciens_[i].debut) ==
               nouveau.midRef(nouveaux_[j].debut, nouveaux_[j].fin - nouveaux_[j].debut);
    };
    auto const marie = [&](int i, int j) {
        anciens_[i].correspondant = j;
        nouveaux_[j].correspondant = i;
    };
    int finAncien = static_cast<int>(anciens_.size());
    int finNouveau = static_cast<int>(nouveaux_.size());
    int debut = 0;
    for (; debut < std::min(finAncien, finNouveau) && pareils(debut, debut); ++debut) {
        marie(debut, debut);
    }
    while (finAncien > debut && finNouveau > debut && pareils(finAncien - 1, finNouveau - 1)) {
        marie(--finAncien, --finNouveau);
    }
    ApparieMilieu(ancien, nouveau, debut, finAncien, finNouveau);
}

void Alignement::ApparieMilieu(QString const& ancien, QString const& nouveau, int debut,
                               int finAncien, int finNouveau) {
    int const na = finAncien - debut;
    int const nn = finNouveau - debut;
    if (na == 0 || nn == 0 || (std::int64_t{na} + 1) * (nn + 1) > kCasesMax) {
        return;
    }
    // Longest common subsequence: longueurs[i][j] is that of what follows i and j.
    std::vector<std::uint16_t> longueurs(static_cast<std::size_t>(na + 1) * (nn + 1), 0);
    auto const longueur = [&](int i, int j) -> std::uint16_t& {
        return longueurs[static_cast<std::size_t>(i) * (nn + 1) + j];
    };
    auto const texteAncien = [&](int i) {
        Morceau const& m = anciens_[debut + i];
        return ancien.midRef(m.debut, m.fin - m.debut);
    };
    auto const texteNouveau = [&](int j) {
        Morceau const& m = nouveaux_[debut + j];
        return nouveau.midRef(m.debut, m.fin - m.debut);
    };
    for (int i = na - 1; i >= 0; --i) {
        for (int j = nn - 1; j >= 0; --j) {
            longueur(i, j) = texteAncien(i) == texteNouveau(j)
                                 ? static_cast<std::uint16_t>(longueur(i + 1, j + 1) + 1)
                                 : std::max(longueur(i + 1, j), longueur(i, j + 1));
        }
    }
    for (int i = 0, j = 0; i < na && j < nn;) {
        if (texteAncien(i) == texteNouveau(j)) {
            anciens_[debut + i].correspondant = debut + j;
            nouveaux_[debut + j].correspondant = debut + i;
            ++i;
            ++j;
        } else if (longueur(i + 1, j) >= longueur(i, j + 1)) {
            ++i;
        } else {
            ++j;
        }
    }
}

} // namespace hote
