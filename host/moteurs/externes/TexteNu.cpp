// SPDX-License-Identifier: MPL-2.0
#include "TexteNu.h"

#include "langue/CodePoint.h"
#include "moteurs/FaisParagraphe.h"

namespace hote {

namespace {

constexpr int kLigneMax = 4000;   ///< UTF-16 units, from where a sentence's end parts a line
constexpr int kLigneFolle = 8000; ///< from where any space does

bool EstFinDeLigne(QChar unite) {
    return unite == QLatin1Char('\n') || unite == QLatin1Char('\r') || unite.unicode() == 0x0B ||
           unite.unicode() == 0x0C || unite.unicode() == 0x2028 || unite.unicode() == 0x2029;
}

bool EstRemplissage(QChar unite) {
    return unite.unicode() == 0x07 || unite.unicode() == 0x11;
}

class Constructeur {
  public:
    explicit Constructeur(ParagrapheAExaminer const& paragraphe)
        : paragraphe_(paragraphe) {}

    std::vector<TexteNu> Fais() {
        QString const& texte = paragraphe_.texte;
        for (int i = 0; i < texte.size();) {
            CodePoint const point = LisCodePoint(texte, i, texte.size());
            Prends(i, point);
            i += point.taille;
        }
        Finis(texte.size());
        return std::move(lignes_);
    }

  private:
    void Prends(int place, CodePoint const& point) {
        QChar const unite = paragraphe_.texte.at(place);
        bool const longue = ligne_.texte.size() > kLigneMax;
        bool const finDePhrase = longue && !ligne_.texte.isEmpty() && unite.isSpace() &&
                                 QStringLiteral(".!?…").contains(ligne_.texte.back());
        bool const folle = ligne_.texte.size() > kLigneFolle && unite.isSpace();
        if (EstFinDeLigne(unite) || finDePhrase || folle) {
            Finis(place);
        } else if (EstRemplissage(unite)) {
            // Behind a word it is a note's mark; standing alone, something that has a word's place.
            if (ligne_.texte.isEmpty() || ligne_.texte.back().isSpace()) {
                Ajoute(place, QLatin1Char('X'));
            }
        } else if (point.taille == 1 && (unite.isSurrogate() || (unite < QLatin1Char(' ') &&
                                                                 unite != QLatin1Char('\t')))) {
            Ajoute(place, QChar::ReplacementCharacter);
        } else {
            for (int i = 0; i < point.taille; ++i) {
                Ajoute(place + i, paragraphe_.texte.at(place + i));
            }
        }
    }

    void Ajoute(int place, QChar unite) {
        while (etendue_ + 1 < paragraphe_.langues.size() &&
               paragraphe_.langues[etendue_].fin <= place) {
            ++etendue_;
        }
        QString const langue =
            paragraphe_.langues.empty() ? QString() : paragraphe_.langues[etendue_].langue;
        int const ici = ligne_.texte.size();
        if (!ligne_.langues.empty() && ligne_.langues.back().langue == langue) {
            ligne_.langues.back().fin = ici + 1;
        } else {
            ligne_.langues.push_back({ici, ici + 1, langue});
        }
        ligne_.texte += unite;
        ligne_.places.push_back(place);
    }

    void Finis(int place) {
        if (!ligne_.texte.trimmed().isEmpty()) {
            ligne_.places.push_back(place);
            lignes_.push_back(std::move(ligne_));
        }
        ligne_ = {};
    }

    ParagrapheAExaminer const& paragraphe_;
    std::vector<TexteNu> lignes_;
    TexteNu ligne_;
    std::size_t etendue_ = 0;
};

} // namespace

std::vector<TexteNu> FaisTextesNus(ParagrapheAExaminer const& paragraphe) {
    return Constructeur(paragraphe).Fais();
}

} // namespace hote
