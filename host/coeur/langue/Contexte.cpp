// SPDX-License-Identifier: MPL-2.0
#include "Contexte.h"

#include "CodePoint.h"

#include <algorithm>

namespace hote {

namespace {

/// Does a cut at `place` fall inside a pair?
bool CoupePaire(QString const& texte, int place) {
    return place > 0 && place < texte.size() && texte.at(place).isLowSurrogate() &&
           texte.at(place - 1).isHighSurrogate();
}

constexpr uint kTraitConditionnel = 0xAD;

/// Does a format character that does not show itself form what does? A soft hyphen tells where a
/// word may part, a joiner shapes the letters of scripts that join, and pictures.
bool SeForme(uint precedent, uint code) {
    constexpr uint kSeparateurSansChasse = 0x200C;
    constexpr uint kLiantSansChasse = 0x200D;
    constexpr uint kFinDesEcrituresSansLiaison = 0x590; // Latin, Greek, Cyrillic, Armenian
    bool const joint = code == kSeparateurSansChasse || code == kLiantSansChasse;
    return code == kTraitConditionnel || (joint && precedent >= kFinDesEcrituresSansLiaison);
}

} // namespace

Contexte DonneContexte(QString const& texte, int debut, int fin, int largeur) {
    int gauche = std::max(debut - largeur, 0);
    if (gauche > 0) {
        int mot = gauche;
        while (mot < debut && !texte.at(mot - 1).isSpace()) {
            ++mot;
        }
        gauche = mot < debut ? mot : gauche;
        gauche += CoupePaire(texte, gauche) ? 1 : 0;
    }
    int const longueur = texte.size();
    int droite = std::min(fin + largeur, longueur);
    if (droite < longueur) {
        int mot = droite;
        while (mot > fin && !texte.at(mot).isSpace()) {
            --mot;
        }
        droite = mot > fin ? mot : droite;
        droite -= CoupePaire(texte, droite) ? 1 : 0;
    }
    return {texte.mid(gauche, debut - gauche), texte.mid(fin, droite - fin), gauche > 0,
            droite < longueur};
}

QString DonnePourTerminal(QString const& texte) {
    QString resultat;
    resultat.reserve(texte.size());
    uint precedent = 0;
    for (int i = 0; i < texte.size();) {
        CodePoint const point = LisCodePoint(texte, i, texte.size());
        auto const categorie = QChar::category(point.code);
        bool const dangereux =
            categorie == QChar::Other_Control || categorie == QChar::Other_Surrogate ||
            categorie == QChar::Separator_Line || categorie == QChar::Separator_Paragraph;
        if (point.code == '\t') {
            resultat += QLatin1Char(' ');
        } else if (dangereux) {
            resultat += QChar(0xB7);
        } else if (categorie == QChar::Other_Format && !SeForme(precedent, point.code)) {
            resultat += QStringLiteral("<U+%1>").arg(QString::number(point.code, 16).toUpper(), 4,
                                                     QLatin1Char('0'));
        } else if (point.code != kTraitConditionnel) {
            resultat += texte.midRef(i, point.taille);
        }
        precedent = point.code;
        i += point.taille;
    }
    return resultat;
}

} // namespace hote
