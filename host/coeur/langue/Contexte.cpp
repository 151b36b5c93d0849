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
    for (int i = 0; i < texte.size();) {
        CodePoint const point = LisCodePoint(texte, i, texte.size());
        auto const categorie = QChar::category(point.code);
        bool const dangereux =
            categorie == QChar::Other_Control || categorie == QChar::Other_Surrogate ||
            categorie == QChar::Separator_Line || categorie == QChar::Separator_Paragraph ||
            (point.code >= 0x202A && point.code <= 0x202E) ||
            (point.code >= 0x2066 && point.code <= 0x2069);
        if (point.code == '\t') {
            resultat += QLatin1Char(' ');
        } else if (dangereux) {
            resultat += QChar(0xB7);
        } else if (point.code != 0xAD) {
            resultat += texte.midRef(i, point.taille);
        }
        i += point.taille;
    }
    return resultat;
}

} // namespace hote
