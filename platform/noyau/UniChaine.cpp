// SPDX-License-Identifier: MPL-2.0
#include "UniChaine.h"

#include "DecodageUtf8.h"

#include <algorithm>
#include <cstring>

UniChaine const kUniChaineNulle;

UniChaine::UniChaine(char const* octets, eCodage /*codage*/, int longueur) {
    if (octets == nullptr) {
        return;
    }
    auto const taille = longueur < 0 ? std::strlen(octets) : static_cast<std::size_t>(longueur);
    texte_ = DecodeUtf8(octets, taille);
}

UniChaine::UniChaine(char16_t const* unites, int longueur) {
    if (unites != nullptr && longueur > 0) {
        texte_ = QString(reinterpret_cast<QChar const*>(unites), longueur);
    }
}

UniChaine UniChaine::DepuisUtf8(std::string const& octets) {
    return UniChaine(DecodeUtf8(octets.data(), octets.size()));
}

UniChaine UniChaine::Extrais(int debut, int longueur) const {
    auto const fin = std::min<qint64>(qint64{debut} + std::max(longueur, 0), Longueur());
    debut = std::max(debut, 0);
    return debut < fin ? UniChaine(texte_.mid(debut, static_cast<int>(fin) - debut)) : UniChaine();
}

void UniChaine::Ajoute(UniChaine const& texte) {
    texte_.append(texte.texte_);
}

bool UniChaine::Remplace(int debut, int longueur, UniChaine const& texte) {
    if (debut < 0 || debut > Longueur() || longueur < 0) {
        return false;
    }
    QString const remplacant = texte.texte_; // `texte` may be this very object
    texte_.replace(debut, std::min(longueur, Longueur() - debut), remplacant);
    return true;
}

std::string UniChaine::VersUtf8() const {
    // By pieces: Qt sets room for three bytes a unit aside, next to the copy made here, and replies
    // of 100 MiB pass through this function.
    constexpr int kMorceau = 1 << 16;
    std::string octets;
    octets.reserve(static_cast<std::size_t>(Longueur()));
    for (int debut = 0; debut < Longueur();) {
        int taille = std::min(kMorceau, Longueur() - debut);
        if (debut + taille < Longueur() && texte_.at(debut + taille).isLowSurrogate() &&
            texte_.at(debut + taille - 1).isHighSurrogate()) {
            --taille;
        }
        auto const morceau = QString::fromRawData(texte_.constData() + debut, taille).toUtf8();
        octets.append(morceau.constData(), static_cast<std::size_t>(morceau.size()));
        debut += taille;
    }
    return octets;
}
