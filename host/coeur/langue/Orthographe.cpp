// SPDX-License-Identifier: MPL-2.0
#include "Orthographe.h"

#include "Contrat.h"
#include "Decoupeur.h"

#include <QSet>

#include <algorithm>

namespace hote {

namespace {

constexpr ushort kApostropheCourbe = 0x2019;

/// Does the word touch a run that is not to be proofed? `plage` moves forward with the
/// words, so the whole text costs one pass over the runs.
bool EstExclu(Mot const& mot, Orthographe::Plages const& plages, std::size_t& plage) {
    while (plage < plages.size() && plages[plage].fin <= mot.debut) {
        ++plage;
    }
    for (std::size_t i = plage; i < plages.size() && plages[i].debut < mot.fin; ++i) {
        if ((plages[i].attribut & contrat::kStyleSansCorrection) != 0) {
            return true;
        }
    }
    return false;
}

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

bool CommenceParUneVoyelle(QString const& forme) {
    if (forme.isEmpty()) {
        return false;
    }
    QChar const initiale = forme.normalized(QString::NormalizationForm_D).at(0).toLower();
    return QStringLiteral("aeiouyhœæ").contains(initiale);
}

} // namespace

std::vector<Faute> Orthographe::Cherche(QString const& texte, Plages const& plages) const {
    std::vector<Faute> fautes;
    std::size_t plage = 0;
    for (Mot const& mot : DecoupeEnMots(texte)) {
        if (!EstExclu(mot, plages, plage)) {
            Juge(texte, mot.debut, mot.fin, fautes);
        }
    }
    return fautes;
}

QStringList Orthographe::Suggere(Faute const& faute, bool apostropheCourbe) const {
    QStringList suggestions = lexique_.Suggere(DonneForme(faute.mot));
    if (apostropheCourbe) {
        suggestions.replaceInStrings(QStringLiteral("'"), QString(QChar(kApostropheCourbe)));
    }
    suggestions.removeDuplicates();
    suggestions.removeAll(faute.mot);
    return suggestions;
}

bool Orthographe::AUneApostropheCourbe(QString const& texte) {
    return texte.contains(QChar(kApostropheCourbe));
}

void Orthographe::Juge(QString const& texte, int debut, int fin, std::vector<Faute>& fautes) const {
    if (Connait(texte, debut, fin)) {
        return;
    }
    bool const francais = lexique_.DonneLangue() == Langue::Francais;
    int const reste = francais ? SauteElision(texte, debut, fin) : debut;
    int const racine = francais ? fin : OtePossessif(texte, debut, fin);
    if (reste != debut || racine != fin) {
        if (racine - reste > 1) {
            Juge(texte, reste, racine, fautes);
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
                Juge(texte, partie, finPartie, fautes);
            }
            partie = finPartie + 1;
        }
        return;
    }
    fautes.push_back({debut, fin, texte.mid(debut, fin - debut)});
}

bool Orthographe::Connait(QString const& texte, int debut, int fin) const {
    return lexique_.Connait(DonneForme(texte.mid(debut, fin - debut)));
}

int Orthographe::SauteElision(QString const& texte, int debut, int fin) const {
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

int Orthographe::OtePossessif(QString const& texte, int debut, int fin) const {
    bool const possessif = fin - debut > 2 && texte.at(fin - 1).toLower() == QLatin1Char('s') &&
                           EstApostrophe(texte.at(fin - 2));
    return possessif ? fin - 2 : fin;
}

} // namespace hote
