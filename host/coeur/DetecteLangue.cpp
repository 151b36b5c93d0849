// SPDX-License-Identifier: MPL-2.0
#include "DetecteLangue.h"

#include "Decoupeur.h"

namespace hote {

namespace {

constexpr int kMotsSuffisants = 2000;

} // namespace

bool DetecteLangue::Compte(QString const& texte) {
    for (Mot const& mot : DecoupeEnMots(texte)) {
        QString const forme = DonneForme(texte.mid(mot.debut, mot.fin - mot.debut));
        motsFrancais_ += francais_.Connait(forme) ? 1 : 0;
        motsAnglais_ += anglais_.Connait(forme) ? 1 : 0;
        if (++mots_ >= kMotsSuffisants)
            return true;
    }
    return false;
}

std::optional<Langue> DetecteLangue::DonneLangue() const {
    if (motsFrancais_ == motsAnglais_)
        return std::nullopt;
    return motsFrancais_ > motsAnglais_ ? Langue::Francais : Langue::Anglais;
}

} // namespace hote
