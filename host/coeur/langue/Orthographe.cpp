// SPDX-License-Identifier: MPL-2.0
#include "Orthographe.h"

#include "Contrat.h"
#include "Decoupeur.h"
#include "LangueDuStyle.h"

#include <QSet>

#include <algorithm>

namespace hote {

namespace {

constexpr ushort kApostropheCourbe = 0x2019;

/// What the runs that a word touches say of it.
struct Nature {
    bool estExclu = false; ///< not to be proofed, or nobody knows in which language
    std::optional<Langue> langue;
};

/// `plage` moves forward with the words, so the whole text costs one pass over the runs.
Nature DonneNature(Mot const& mot, Orthographe::Plages const& plages, std::size_t& plage) {
    while (plage < plages.size() && plages[plage].fin <= mot.debut) {
        ++plage;
    }
    Nature nature;
    for (std::size_t i = plage; i < plages.size() && plages[i].debut < mot.fin; ++i) {
        auto const style = static_cast<std::uint16_t>(plages[i].attribut);
        LangueDuStyle const dite = LisLangueDuStyle(style);
        bool const seContredit = nature.langue && dite.estDite && dite.langue != nature.langue;
        if ((style & contrat::kStyleSansCorrection) != 0 || (dite.estDite && !dite.langue) ||
            seContredit) {
            return {true, std::nullopt};
        }
        nature.langue = dite.estDite ? dite.langue : nature.langue;
    }
    return nature;
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

Lexique* Orthographe::TrouveLexique(std::optional<Langue> langue) const {
    if (!langue || *langue == principal_.DonneLangue()) {
        return &principal_;
    }
    return autre_ ? autre_(*langue) : nullptr;
}

std::vector<Faute> Orthographe::Cherche(QString const& texte, Plages const& plages) const {
    std::vector<Faute> fautes;
    std::size_t plage = 0;
    for (Mot const& mot : DecoupeEnMots(texte)) {
        Nature const nature = DonneNature(mot, plages, plage);
        Lexique* const lexique = nature.estExclu ? nullptr : TrouveLexique(nature.langue);
        if (lexique == nullptr) {
            continue;
        }
        std::size_t const premiere = fautes.size();
        Juge(*lexique, texte, mot.debut, mot.fin, fautes);
        for (std::size_t i = premiere; i < fautes.size() && lexique != &principal_; ++i) {
            fautes[i].langue = nature.langue;
        }
    }
    return fautes;
}

QStringList Orthographe::Suggere(Faute const& faute, bool apostropheCourbe) const {
    Lexique* const lexique = TrouveLexique(faute.langue);
    QStringList suggestions =
        lexique != nullptr ? lexique->Suggere(DonneForme(faute.mot)) : QStringList();
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

void Orthographe::Juge(Lexique& lexique, QString const& texte, int debut, int fin,
                       std::vector<Faute>& fautes) {
    if (Connait(lexique, texte, debut, fin)) {
        return;
    }
    bool const francais = lexique.DonneLangue() == Langue::Francais;
    int const reste = francais ? SauteElision(texte, debut, fin) : debut;
    int const racine = francais ? fin : OtePossessif(texte, debut, fin);
    if (reste != debut || racine != fin) {
        if (racine - reste > 1) {
            Juge(lexique, texte, reste, racine, fautes);
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
                Juge(lexique, texte, partie, finPartie, fautes);
            }
            partie = finPartie + 1;
        }
        return;
    }
    fautes.push_back({debut, fin, texte.mid(debut, fin - debut)});
}

} // namespace hote
