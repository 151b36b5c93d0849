// SPDX-License-Identifier: MPL-2.0
// Random operations on an attributed string, against a model that keeps one cell a unit.
#include "ChaineN.h"
#include "ChaineTemplateAvecAttributs.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <random>
#include <vector>

namespace {

using sdd::ChaineN;
using Chaine = sdd::ChaineTemplateAvecAttributs<ChaineN>;
using Plages = Chaine::Plages;

/// One unit, its attribute, and which setting gave it: cells of one run share a number.
struct Case {
    char16_t unite;
    std::uint16_t attribut;
    int plage;
};

class Modele {
  public:
    explicit Modele(QString const& texte) {
        for (auto const c : texte) {
            cases_.push_back({c.unicode(), 0, 0});
        }
    }

    int Longueur() const { return static_cast<int>(cases_.size()); }

    void MetsAttribut(qint64 debut, qint64 longueur, std::uint16_t attribut) {
        int const plage = attribut != 0 ? NouvellePlage() : 0;
        for (qint64 i = std::max<qint64>(debut, 0);
             i < std::min<qint64>(debut + longueur, Longueur()); ++i) {
            cases_[static_cast<std::size_t>(i)] = {cases_[static_cast<std::size_t>(i)].unite,
                                                   attribut, plage};
        }
    }

    bool Remplace(int debut, int longueur, Modele const& autre) {
        if (debut < 0 || debut > Longueur() || longueur < 0) {
            return false;
        }
        longueur = std::min(longueur, Longueur() - debut);
        if (longueur == 0 && autre.cases_.empty()) {
            return true;
        }
        auto const place = cases_.begin() + debut;
        std::vector<Case> suite(place + longueur, cases_.end());
        cases_.erase(place, cases_.end());
        Renumerote(suite);
        auto milieu = autre.cases_;
        Renumerote(milieu);
        cases_.insert(cases_.end(), milieu.begin(), milieu.end());
        cases_.insert(cases_.end(), suite.begin(), suite.end());
        return true;
    }

    Plages DonnePlages() const {
        Plages plages;
        for (int i = 0; i < Longueur(); ++i) {
            auto const& c = cases_[static_cast<std::size_t>(i)];
            if (c.plage == 0) {
                continue;
            }
            bool const suit = i > 0 && cases_[static_cast<std::size_t>(i - 1)].plage == c.plage;
            if (suit) {
                plages.back().fin = i + 1;
            } else {
                plages.push_back({i, i + 1, c.attribut});
            }
        }
        return plages;
    }

    QString DonneTexte() const {
        QString texte;
        for (auto const& c : cases_) {
            texte += QChar(c.unite);
        }
        return texte;
    }

  private:
    static int NouvellePlage() {
        static int derniere = 0;
        return ++derniere;
    }

    /// Gives each run numbers of its own: what a replacement cuts in two is two runs from then on.
    static void Renumerote(std::vector<Case>& cases) {
        int avant = 0;
        int plage = 0;
        for (auto& c : cases) {
            if (c.plage != avant) {
                avant = c.plage;
                plage = c.plage != 0 ? NouvellePlage() : 0;
            }
            c.plage = plage;
        }
    }

    std::vector<Case> cases_;
};

class Hasard {
  public:
    explicit Hasard(unsigned graine)
        : moteur_(graine) {}
    int Entre(int bas, int haut) { return std::uniform_int_distribution<int>(bas, haut)(moteur_); }
    /// Mostly near the text, sometimes at the ends of the type.
    int Position(int longueur) {
        switch (Entre(0, 19)) {
        case 0:
            return INT_MIN;
        case 1:
            return INT_MAX;
        default:
            return Entre(-3, longueur + 3);
        }
    }
    QString Texte(int longueurMax) {
        QString texte;
        for (int reste = Entre(0, longueurMax); reste > 0; --reste) {
            texte += QChar(static_cast<ushort>(Entre('a', 'z')));
        }
        return texte;
    }
    std::uint16_t Attribut() { return static_cast<std::uint16_t>(Entre(0, 3)); }

  private:
    std::mt19937 moteur_;
};

class AttributedStringAgainstAModel : public testing::TestWithParam<unsigned> {};

TEST_P(AttributedStringAgainstAModel, AnswersAlikeAfterEveryOperation) {
    Hasard hasard(GetParam());
    auto const depart = hasard.Texte(40);
    Chaine chaine{ChaineN(depart)};
    Modele modele(depart);
    for (int tour = 0; tour < 400; ++tour) {
        int const debut = hasard.Position(modele.Longueur());
        int const longueur = hasard.Position(modele.Longueur());
        if (hasard.Entre(0, 3) != 0) {
            auto const attribut = hasard.Attribut();
            chaine.MetsAttribut(debut, longueur, attribut);
            modele.MetsAttribut(debut, longueur, attribut);
        } else {
            auto const texte = hasard.Texte(6);
            Chaine piece{ChaineN(texte)};
            Modele pieceModele(texte);
            int const milieu = hasard.Entre(0, 6);
            auto const attribut = hasard.Attribut();
            piece.MetsAttribut(milieu - 2, 3, attribut);
            pieceModele.MetsAttribut(milieu - 2, 3, attribut);
            EXPECT_EQ(modele.Remplace(debut, longueur, pieceModele),
                      chaine.Remplace(debut, longueur, piece));
        }
        ASSERT_EQ(modele.DonneTexte(), chaine.DonneTexte().VersQString());
        ASSERT_EQ(modele.DonnePlages(), chaine.DonnePlages()) << "round " << tour;
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, AttributedStringAgainstAModel, testing::Range(1u, 41u));

} // namespace
