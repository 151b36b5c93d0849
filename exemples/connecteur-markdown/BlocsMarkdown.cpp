// SPDX-License-Identifier: MPL-2.0
#include "BlocsMarkdown.h"

#include <QRegularExpression>

namespace markdown {

namespace {

/// One line, and where the next one begins.
struct Ligne {
    int debut;
    int suivante;
    QString texte;
};

std::vector<Ligne> DonneLignes(QString const& texte) {
    std::vector<Ligne> lignes;
    for (int debut = 0; debut < texte.size();) {
        int const saut = texte.indexOf(QLatin1Char('\n'), debut);
        int const suivante = saut < 0 ? texte.size() : saut + 1;
        lignes.push_back({debut, suivante, texte.mid(debut, suivante - debut)});
        debut = suivante;
    }
    return lignes;
}

bool EstVide(QString const& ligne) {
    return ligne.trimmed().isEmpty();
}

/// The marks of a code fence that the line opens; empty when it opens none.
QString DonneCloture(QString const& ligne) {
    static QRegularExpression const cloture(QStringLiteral("^ {0,3}(`{3,}|~{3,})"));
    return cloture.match(ligne).captured(1);
}

/// Does the line begin a block of its own, whatever stands before it?
bool CommenceUnBloc(QString const& ligne) {
    static QRegularExpression const debut(
        QStringLiteral("^ {0,3}(?:#{1,6}\\s|>|[-+*]\\s|\\d{1,9}[.)]\\s|\\|)"));
    return debut.match(ligne).hasMatch() || !DonneCloture(ligne).isEmpty();
}

bool EstTitre(QString const& ligne) {
    static QRegularExpression const titre(QStringLiteral("^ {0,3}#{1,6}\\s"));
    return titre.match(ligne).hasMatch();
}

bool EstCodeEnRetrait(QString const& ligne) {
    return ligne.startsWith(QLatin1String("    ")) || ligne.startsWith(QLatin1Char('\t'));
}

/// Cuts the lines into blocks, one after the other.
class DecoupeurMarkdown {
  public:
    explicit DecoupeurMarkdown(QString const& texte)
        : lignes_(DonneLignes(texte)) {}

    std::vector<BlocMarkdown> Decoupe() {
        while (rang_ < lignes_.size()) {
            PrendsBloc();
        }
        return std::move(blocs_);
    }

  private:
    void PrendsBloc() {
        std::size_t const premiere = rang_;
        QString const& texte = lignes_[premiere].texte;
        QString const cloture = DonneCloture(texte);
        bool estTexte = false;
        ++rang_;
        if (premiere == 0 && texte.trimmed() == QLatin1String("---")) {
            AvanceJusque([](QString const& l) { return l.trimmed() == QLatin1String("---"); });
        } else if (!cloture.isEmpty()) {
            AvanceJusque([&](QString const& l) { return DonneCloture(l).startsWith(cloture); });
        } else if (EstCodeEnRetrait(texte) && !listeOuverte_) {
            AvanceTantQue([](QString const& l) { return EstCodeEnRetrait(l) || EstVide(l); });
        } else if (texte.startsWith(QLatin1Char('<'))) {
            AvanceTantQue([](QString const& l) { return !EstVide(l); });
        } else {
            estTexte = true;
            listeOuverte_ = texte.startsWith(QLatin1Char(' ')) ? listeOuverte_ : EstListe(texte);
            if (!EstTitre(texte)) {
                AvanceTantQue([](QString const& l) { return !EstVide(l) && !CommenceUnBloc(l); });
            }
        }
        AvanceTantQue(EstVide);
        blocs_.push_back({lignes_[premiere].debut, lignes_[rang_ - 1].suivante, estTexte});
    }

    static bool EstListe(QString const& ligne) {
        static QRegularExpression const liste(QStringLiteral("^(?:[-+*]|\\d{1,9}[.)])\\s"));
        return liste.match(ligne).hasMatch();
    }

    template <class Condition>
    void AvanceTantQue(Condition condition) {
        while (rang_ < lignes_.size() && condition(lignes_[rang_].texte)) {
            ++rang_;
        }
    }

    template <class Condition>
    void AvanceJusque(Condition condition) {
        AvanceTantQue([&](QString const& ligne) { return !condition(ligne); });
        rang_ += rang_ < lignes_.size() ? 1 : 0;
    }

    std::vector<Ligne> lignes_;
    std::vector<BlocMarkdown> blocs_;
    std::size_t rang_ = 0;
    bool listeOuverte_ = false; ///< what is indented then belongs to an item
};

} // namespace

std::vector<BlocMarkdown> Decoupe(QString const& texte) {
    return DecoupeurMarkdown(texte).Decoupe();
}

std::vector<PlageMarkdown> TrouveExclusions(QString const& texte,
                                            std::vector<BlocMarkdown> const& blocs) {
    static QRegularExpression const exclu(
        QStringLiteral("(?<!`)(`+)(?!`).*?(?<!`)\\1(?!`)" // code
                       "|(?<=\\])\\([^)\\n]*\\)"          // where a link leads
                       "|^ {0,3}\\[[^\\]\\n]+\\]:.*?$"    // the same, by reference
                       "|<[A-Za-z/!][^>\\n]*>"            // tags, addresses in brackets
                       "|\\b(?:https?|ftp|mailto):[^\\s<>)\\]]+"
                       "|\\bwww\\.[^\\s<>)\\]]+"
                       "|[\\w.+-]+@[\\w-]+(?:\\.[\\w-]+)+"),
        QRegularExpression::MultilineOption | QRegularExpression::DotMatchesEverythingOption |
            QRegularExpression::UseUnicodePropertiesOption);
    std::vector<PlageMarkdown> exclusions;
    for (BlocMarkdown const& bloc : blocs) {
        if (!bloc.estTexte) {
            exclusions.push_back({bloc.debut, bloc.fin});
            continue;
        }
        auto trouves = exclu.globalMatch(texte.mid(bloc.debut, bloc.fin - bloc.debut));
        while (trouves.hasNext()) {
            auto const trouve = trouves.next();
            exclusions.push_back(
                {bloc.debut + trouve.capturedStart(), bloc.debut + trouve.capturedEnd()});
        }
    }
    return exclusions;
}

} // namespace markdown
