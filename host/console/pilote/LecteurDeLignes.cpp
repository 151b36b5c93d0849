// SPDX-License-Identifier: MPL-2.0
#include "LecteurDeLignes.h"

namespace hote {

void LecteurDeLignes::Ajoute(char const* octets, std::size_t taille) {
    attente_.append(octets, static_cast<int>(taille));
}

std::optional<LecteurDeLignes::Ligne> LecteurDeLignes::PrendsSuivante() {
    int const saut = attente_.indexOf('\n', lus_);
    if (saut < 0 && (deborde_ || attente_.size() > limite_)) {
        attente_.clear();
        deborde_ = true;
    }
    lus_ = attente_.size();
    bool const derniere = termine_ && (deborde_ || !attente_.isEmpty());
    if (saut < 0 && !derniere) {
        return std::nullopt;
    }
    int const longueur = saut < 0 ? attente_.size() : saut;
    bool const tropLongue = deborde_ || longueur > limite_;
    Ligne ligne{tropLongue ? QByteArray() : attente_.left(longueur), tropLongue};
    attente_.remove(0, saut < 0 ? longueur : longueur + 1);
    lus_ = 0;
    deborde_ = false;
    return ligne;
}

} // namespace hote
