// SPDX-License-Identifier: MPL-2.0
#include "DetecteLangue.h"

#include "Decoupeur.h"

#include <QSet>

namespace hote {

namespace {

constexpr int kMotsSuffisants = 2000;
constexpr int kPoidsMotOutil = 4;

/// Is it one of the small words that no text does without, and that the other language has not?
bool EstMotOutil(QString const& forme, Langue langue) {
    static auto const liste = [](char const* mots) {
        auto const separes = QString::fromUtf8(mots).split(QLatin1Char(' '));
        return QSet<QString>(separes.begin(), separes.end());
    };
    static QSet<QString> const francais =
        liste("le la les un une des du de et est dans que qui ne pas ce cette il elle nous vous je "
              "au aux avec sur par se ou où mais sont ses leur été à");
    static QSet<QString> const anglais =
        liste("the of and to is in that it for was with as his her he she they be at by this had "
              "not are but from have which you were their been has will would an");
    return (langue == Langue::Francais ? francais : anglais).contains(forme.toLower());
}

int DonnePoints(QString const& forme, Lexique& lexique) {
    if (!lexique.Connait(forme)) {
        return 0;
    }
    return EstMotOutil(forme, lexique.DonneLangue()) ? kPoidsMotOutil : 1;
}

} // namespace

bool DetecteLangue::Compte(QString const& texte) {
    for (Mot const& mot : DecoupeEnMots(texte)) {
        QString const forme = DonneForme(texte.mid(mot.debut, mot.fin - mot.debut));
        pointsFrancais_ += DonnePoints(forme, francais_);
        pointsAnglais_ += DonnePoints(forme, anglais_);
        if (++mots_ >= kMotsSuffisants) {
            return true;
        }
    }
    return false;
}

std::optional<Langue> DetecteLangue::DonneLangue() const {
    if (pointsFrancais_ == pointsAnglais_) {
        return std::nullopt;
    }
    return pointsFrancais_ > pointsAnglais_ ? Langue::Francais : Langue::Anglais;
}

} // namespace hote
