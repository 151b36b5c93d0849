// SPDX-License-Identifier: MPL-2.0
#include "JugeMot.h"

#include <QSet>

#include <algorithm>

namespace hote {

namespace {

/// Words that lose their last vowel before another one.
bool EstElision(QString const& forme) {
    static QSet<QString> const elisions = {
        QStringLiteral("l"),      QStringLiteral("d"),      QStringLiteral("j"),
        QStringLiteral("m"),      QStringLiteral("t"),      QStringLiteral("s"),
        QStringLiteral("c"),      QStringLiteral("n"),      QStringLiteral("qu"),
        QStringLiteral("jusqu"),  QStringLiteral("lorsqu"), QStringLiteral("puisqu"),
        QStringLiteral("quoiqu"), QStringLiteral("presqu"), QStringLiteral("quelqu"),
    };
    return elisions.contains(forme.toLower());
}

bool Connait(Lexique& lexique, QString const& texte, int debut, int fin) {
    return lexique.Connait(DonneForme(texte.mid(debut, fin - debut)));
}

bool CommenceParUneVoyelle(QString const& forme) {
    if (forme.isEmpty()) {
        return false;
    }
    QChar const initiale = forme.normalized(QString::NormalizationForm_D).at(0).toLower();
    return QStringLiteral("aeiouyhœæ").contains(initiale);
}

int SauteElision(QString const& texte, int debut, int fin) {
    auto const apostrophe =
        std::find_if(texte.cbegin() + debut, texte.cbegin() + fin, EstApostrophe);
    int const place = static_cast<int>(apostrophe - texte.cbegin());
    if (place == fin || !EstElision(DonneForme(texte.mid(debut, place - debut)))) {
        return debut;
    }
    // "l'maison" is wrong as a whole, and its second half alone would not show it.
    return CommenceParUneVoyelle(DonneForme(texte.mid(place + 1, fin - place - 1))) ? place + 1
                                                                                    : debut;
}

int OtePossessif(QString const& texte, int debut, int fin) {
    bool const possessif = fin - debut > 2 && texte.at(fin - 1).toLower() == QLatin1Char('s') &&
                           EstApostrophe(texte.at(fin - 2));
    return possessif ? fin - 2 : fin;
}

} // namespace

void JugeMot(Lexique& lexique, QString const& texte, Mot const& mot, std::vector<Mot>& fautes) {
    int const debut = mot.debut;
    int const fin = mot.fin;
    if (Connait(lexique, texte, debut, fin)) {
        return;
    }
    bool const francais = lexique.DonneLangue() == Langue::Francais;
    int const reste = francais ? SauteElision(texte, debut, fin) : debut;
    int const racine = francais ? fin : OtePossessif(texte, debut, fin);
    if (reste != debut || racine != fin) {
        if (racine - reste > 1) {
            JugeMot(lexique, texte, {reste, racine}, fautes);
        }
        return;
    }
    // Not known as a whole: each part between hyphens for itself.
    bool const compose = std::any_of(texte.cbegin() + debut, texte.cbegin() + fin, EstTraitDUnion);
    if (compose) {
        for (int partie = debut; partie < fin;) {
            auto const trait =
                std::find_if(texte.cbegin() + partie, texte.cbegin() + fin, EstTraitDUnion);
            int const finPartie = static_cast<int>(trait - texte.cbegin());
            if (finPartie - partie > 1) {
                JugeMot(lexique, texte, {partie, finPartie}, fautes);
            }
            partie = finPartie + 1;
        }
        return;
    }
    fautes.push_back(mot);
}

} // namespace hote
