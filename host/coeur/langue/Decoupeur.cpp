// SPDX-License-Identifier: MPL-2.0
#include "Decoupeur.h"

#include "Adresses.h"
#include "CodePoint.h"

#include <QRegularExpression>

namespace hote {

namespace {

constexpr int kLongueurMax = 80;
constexpr char32_t kCesureConditionnelle = 0xAD;
constexpr char32_t kPointMedian = 0xB7;

bool EstLettre(char32_t code) {
    return QChar::isLetter(code);
}

/// Belongs to a word wherever it stands in it.
bool EstCorps(char32_t code) {
    return EstLettre(code) || QChar::isMark(code) || QChar::isDigit(code) ||
           code == kCesureConditionnelle;
}

/// Belongs to a word between two letters. The middle dot is French inclusive writing's.
bool EstLien(char32_t code) {
    return code == kPointMedian || (code < 0x10000 && (EstApostrophe(QChar(ushort(code))) ||
                                                       EstTraitDUnion(QChar(ushort(code)))));
}

/// Parts chunks: what an address cannot hold.
bool EstSeparateur(char32_t code) {
    return QChar::isSpace(code) || QChar::category(code) == QChar::Other_Control ||
           (code >= 0xD800 && code < 0xE000);
}

bool EstNombreRomain(QString const& forme) {
    static QRegularExpression const romain(
        QStringLiteral("^[IVXLCDM]{2,}$|^[IVX][IVXLCDM]*(e|er|re|es|ème|èmes)$"));
    return romain.match(forme).hasMatch();
}

/// Can a French or English dictionary judge this word at all?
bool EstJugeable(QString const& texte, Mot const& mot) {
    if (mot.fin - mot.debut > kLongueurMax) {
        return false;
    }
    int lettres = 0;
    for (int i = mot.debut; i < mot.fin;) {
        CodePoint const point = LisCodePoint(texte, i, mot.fin);
        if (QChar::isDigit(point.code) || point.code == kPointMedian) {
            return false;
        }
        if (EstLettre(point.code)) {
            auto const ecriture = QChar::script(point.code);
            if (ecriture != QChar::Script_Latin && ecriture != QChar::Script_Common) {
                return false;
            }
            ++lettres;
        }
        i += point.taille;
    }
    return lettres > 1 && !EstNombreRomain(DonneForme(texte.mid(mot.debut, mot.fin - mot.debut)));
}

/// The end of the word that begins at `debut`.
int TrouveFin(QString const& texte, int debut, int limite) {
    int fin = debut;
    int i = debut;
    while (i < limite) {
        CodePoint const point = LisCodePoint(texte, i, limite);
        if (EstCorps(point.code)) {
            i += point.taille;
            if (point.code != kCesureConditionnelle) {
                fin = i; // a soft hyphen at the very end is not the word's
            }
            continue;
        }
        bool const suivi = i + point.taille < limite &&
                           EstLettre(LisCodePoint(texte, i + point.taille, limite).code);
        if (!EstLien(point.code) || !suivi) {
            break;
        }
        i += point.taille;
    }
    return fin;
}

void DecoupeMorceau(QString const& texte, int debut, int fin, std::vector<Mot>& mots) {
    if (EstTechnique(texte.midRef(debut, fin - debut))) {
        return;
    }
    for (int i = debut; i < fin;) {
        CodePoint const point = LisCodePoint(texte, i, fin);
        if (!EstLettre(point.code) && !QChar::isDigit(point.code)) {
            i += point.taille;
            continue;
        }
        Mot const mot{i, TrouveFin(texte, i, fin)};
        if (EstJugeable(texte, mot)) {
            mots.push_back(mot);
        }
        i = mot.fin;
    }
}

} // namespace

std::vector<Mot> DecoupeEnMots(QString const& texte) {
    std::vector<Mot> mots;
    int const longueur = texte.size();
    int debut = 0;
    for (int i = 0; i < longueur;) {
        CodePoint const point = LisCodePoint(texte, i, longueur);
        if (EstSeparateur(point.code)) {
            DecoupeMorceau(texte, debut, i, mots);
            debut = i + point.taille;
        }
        i += point.taille;
    }
    DecoupeMorceau(texte, debut, longueur, mots);
    return mots;
}

QString DonneForme(QString const& brut) {
    QString forme;
    forme.reserve(brut.size());
    for (QChar const unite : brut) {
        if (unite.unicode() == kCesureConditionnelle) {
            continue;
        }
        if (EstApostrophe(unite)) {
            forme += QLatin1Char('\'');
        } else if (EstTraitDUnion(unite)) {
            forme += QLatin1Char('-');
        } else {
            forme += unite;
        }
    }
    return forme.normalized(QString::NormalizationForm_C);
}

bool EstApostrophe(QChar unite) noexcept {
    return unite == QLatin1Char('\'') || unite.unicode() == 0x2019 || unite.unicode() == 0x02BC;
}

bool EstTraitDUnion(QChar unite) noexcept {
    return unite == QLatin1Char('-') || unite.unicode() == 0x2010 || unite.unicode() == 0x2011;
}

} // namespace hote
