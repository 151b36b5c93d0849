// SPDX-License-Identifier: MPL-2.0
#include "ChaineN.h"

#include <algorithm>

namespace sdd {

ChaineN::ChaineN(int longueur, char16_t unite)
    : texte_(std::max(longueur, 0), QChar(unite)) {}

char16_t ChaineN::operator[](int position) const noexcept {
    return position >= 0 && position < Longueur() ? texte_.at(position).unicode() : u'\0';
}

void ChaineN::MetsUnite(int position, char16_t unite) {
    if (position >= 0 && position < Longueur()) {
        texte_[position] = QChar(unite);
    }
}

bool ChaineN::Remplace(int debut, int longueur, ChaineN const& texte) {
    if (debut < 0 || debut > Longueur() || longueur < 0) {
        return false;
    }
    QString const remplacant = texte.texte_; // `texte` may be this very object
    texte_.replace(debut, std::min(longueur, Longueur() - debut), remplacant);
    return true;
}

void ChaineN::LibereConvertisseurPourCodage() {}

} // namespace sdd
