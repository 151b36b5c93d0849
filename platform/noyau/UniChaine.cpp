// SPDX-License-Identifier: MPL-2.0
#include "UniChaine.h"

#include "DecodageUtf8.h"

#include <algorithm>
#include <cstring>

UniChaine const kUniChaineNulle;

UniChaine::UniChaine(char const* octets, eCodage codage, int longueur) {
    if (octets == nullptr) {
        return;
    }
    auto const taille = longueur < 0 ? std::strlen(octets) : static_cast<std::size_t>(longueur);
    texte_ = codage == kCodageLatin1 ? QString::fromLatin1(octets, static_cast<int>(taille))
                                     : DecodeUtf8(octets, taille);
}

UniChaine::UniChaine(char16_t const* unites, int longueur) {
    if (unites != nullptr && longueur > 0) {
        texte_ = QString(reinterpret_cast<QChar const*>(unites), longueur);
    }
}

UniChaine UniChaine::DepuisUtf8(std::string const& octets) {
    return UniChaine(DecodeUtf8(octets.data(), octets.size()));
}

char16_t UniChaine::DonneUnite(int position) const noexcept {
    return position >= 0 && position < Longueur() ? texte_.at(position).unicode() : u'\0';
}

UniChaine UniChaine::Extrais(int debut, int longueur) const {
    auto const fin = std::min<qint64>(qint64{debut} + std::max(longueur, 0), Longueur());
    debut = std::max(debut, 0);
    return debut < fin ? UniChaine(texte_.mid(debut, static_cast<int>(fin) - debut)) : UniChaine();
}

int UniChaine::Trouve(UniChaine const& motif, int depuis) const noexcept {
    if (motif.EstVide()) {
        return depuis >= 0 && depuis <= Longueur() ? depuis : -1;
    }
    // Qt counts a negative start from the end.
    return texte_.indexOf(motif.texte_, std::max(depuis, 0));
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

void UniChaine::Abrege(int longueurMax) {
    if (longueurMax >= Longueur()) {
        return;
    }
    int garde = std::max(longueurMax, 0);
    if (garde > 0 && texte_.at(garde - 1).isHighSurrogate() && texte_.at(garde).isLowSurrogate()) {
        --garde;
    }
    texte_.truncate(garde);
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
