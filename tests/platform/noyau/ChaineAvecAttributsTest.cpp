// SPDX-License-Identifier: MPL-2.0
#include "ChaineN.h"
#include "ChaineTemplateAvecAttributs.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cstdint>
#include <ctime>
#include <limits>

namespace {

using sdd::ChaineN;
using Chaine = sdd::ChaineTemplateAvecAttributs<ChaineN>;
using Plages = Chaine::Plages;

/// The attribute at a position, 0 where no run holds it.
int AttributEn(Chaine const& texte, int position) {
    for (auto const& plage : texte.DonnePlages()) {
        if (plage.debut <= position && position < plage.fin) {
            return plage.attribut;
        }
    }
    return 0;
}

Chaine Texte(int longueur) {
    return Chaine(ChaineN(longueur, u'x'));
}

TEST(AttributedString, StartsWithoutAttributes) {
    auto const texte = Texte(5);
    EXPECT_EQ(5, texte.Longueur());
    EXPECT_TRUE(texte.DonnePlages().empty());
    EXPECT_EQ(0, AttributEn(texte, 0));
    EXPECT_EQ(0, Chaine().Longueur());
}

TEST(AttributedString, TouchingEqualRunsAreReadBackAsTheyWereSet) {
    auto texte = Texte(10);
    texte.MetsAttribut(0, 3, 1);
    texte.MetsAttribut(3, 2, 1);
    EXPECT_EQ((Plages{{0, 3, 1}, {3, 5, 1}}), texte.DonnePlages());
}

TEST(AttributedString, ALaterRunTakesThePlaceOfWhatItCovers) {
    auto texte = Texte(12);
    texte.MetsAttribut(0, 4, 1);
    texte.MetsAttribut(4, 4, 2);
    texte.MetsAttribut(8, 4, 3);
    texte.MetsAttribut(2, 8, 9);
    EXPECT_EQ((Plages{{0, 2, 1}, {2, 10, 9}, {10, 12, 3}}), texte.DonnePlages());
}

TEST(AttributedString, ARunInsideAnotherLeavesItsTwoSides) {
    auto texte = Texte(10);
    texte.MetsAttribut(0, 10, 1);
    texte.MetsAttribut(4, 2, 2);
    EXPECT_EQ((Plages{{0, 4, 1}, {4, 6, 2}, {6, 10, 1}}), texte.DonnePlages());
    texte.MetsAttribut(4, 2, 0);
    EXPECT_EQ((Plages{{0, 4, 1}, {6, 10, 1}}), texte.DonnePlages());
    EXPECT_EQ(0, AttributEn(texte, 4));
    EXPECT_EQ(1, AttributEn(texte, 6));
}

TEST(AttributedString, WhatLiesOutsideTheTextIsLeftOut) {
    auto texte = Texte(5);
    texte.MetsAttribut(-2, 4, 1);
    texte.MetsAttribut(4, INT_MAX, 2);
    EXPECT_EQ((Plages{{0, 2, 1}, {4, 5, 2}}), texte.DonnePlages());
}

TEST(AttributedString, RangesWithoutAUnitOfTheTextSetNothing) {
    auto texte = Texte(5);
    texte.MetsAttribut(1, 0, 1);
    texte.MetsAttribut(3, -2, 1);
    texte.MetsAttribut(3, INT_MIN, 1);
    texte.MetsAttribut(5, 3, 1);
    texte.MetsAttribut(INT_MAX, INT_MAX, 1);
    texte.MetsAttribut(INT_MIN, INT_MAX, 1);
    texte.MetsAttribut(-3, 3, 1);
    EXPECT_TRUE(texte.DonnePlages().empty());
    texte.MetsAttribut(INT_MIN + 6, INT_MAX, 1); // ends at 5
    EXPECT_EQ((Plages{{0, 5, 1}}), texte.DonnePlages());
}

TEST(AttributedString, AnAttributeIsReadAtEveryPlaceAndZeroOutside) {
    auto texte = Texte(5);
    texte.MetsAttribut(1, 2, 0xFFFF);
    EXPECT_EQ(0, AttributEn(texte, 0));
    EXPECT_EQ(0xFFFF, AttributEn(texte, 1));
    EXPECT_EQ(0xFFFF, AttributEn(texte, 2));
    EXPECT_EQ(0, AttributEn(texte, 3));
    EXPECT_EQ(0, AttributEn(texte, INT_MIN));
    EXPECT_EQ(0, AttributEn(texte, INT_MAX));
}

TEST(AttributedString, ANewTextDropsEveryRun) {
    auto texte = Texte(5);
    texte.MetsAttribut(0, 5, 1);
    texte.MetsTexte(ChaineN(3, u'y'));
    EXPECT_EQ(3, texte.Longueur());
    EXPECT_TRUE(texte.DonnePlages().empty());
}

TEST(AttributedString, RunsBehindAReplacementMoveWithTheirText) {
    auto texte = Texte(10);
    texte.MetsAttribut(0, 2, 1);
    texte.MetsAttribut(3, 4, 2);
    texte.MetsAttribut(8, 2, 3);
    auto milieu = Texte(5);
    milieu.MetsAttribut(1, 2, 7);
    EXPECT_TRUE(texte.Remplace(4, 2, milieu));
    EXPECT_EQ(13, texte.Longueur());
    EXPECT_EQ((Plages{{0, 2, 1}, {3, 4, 2}, {5, 7, 7}, {9, 10, 2}, {11, 13, 3}}),
              texte.DonnePlages());
}

TEST(AttributedString, AReplacementOfNothingByNothingLeavesRunsWhole) {
    auto texte = Texte(6);
    texte.MetsAttribut(0, 6, 1);
    EXPECT_TRUE(texte.Remplace(3, 0, Chaine()));
    EXPECT_EQ((Plages{{0, 6, 1}}), texte.DonnePlages());
}

TEST(AttributedString, AReplacementFromOutsideChangesNothing) {
    auto texte = Texte(5);
    texte.MetsAttribut(0, 5, 1);
    auto const avant = texte;
    EXPECT_FALSE(texte.Remplace(6, 0, Texte(1)));
    EXPECT_FALSE(texte.Remplace(-1, 1, Texte(1)));
    EXPECT_FALSE(texte.Remplace(0, -1, Texte(1)));
    EXPECT_EQ(avant, texte);
    EXPECT_TRUE(texte.Remplace(5, INT_MAX, Texte(1)));
    EXPECT_EQ(6, texte.Longueur());
}

TEST(AttributedString, AStringCanBePutIntoItself) {
    auto texte = Texte(4);
    texte.MetsAttribut(1, 2, 1);
    EXPECT_TRUE(texte.Remplace(2, 0, texte));
    EXPECT_EQ(8, texte.Longueur());
    EXPECT_EQ((Plages{{1, 2, 1}, {3, 5, 1}, {6, 7, 1}}), texte.DonnePlages());
}

TEST(AttributedString, CuttingKeepsWhatLiesInTheFirstPart) {
    auto texte = Texte(10);
    texte.MetsAttribut(2, 6, 1);
    texte.CoupeA(INT_MAX);
    EXPECT_EQ(10, texte.Longueur());
    texte.CoupeA(5);
    EXPECT_EQ((Plages{{2, 5, 1}}), texte.DonnePlages());
    texte.CoupeA(-1);
    EXPECT_EQ(0, texte.Longueur());
    EXPECT_TRUE(texte.DonnePlages().empty());
}

TEST(AttributedString, OneUnitIsChangedWithoutItsAttribute) {
    auto texte = Texte(3);
    texte.MetsAttribut(0, 3, 4);
    texte.MetsUnite(1, u'y');
    texte.MetsUnite(3, u'z');
    EXPECT_EQ(ChaineN(QStringLiteral("xyx")), texte.DonneTexte());
    EXPECT_EQ((Plages{{0, 3, 4}}), texte.DonnePlages());
}

TEST(AttributedString, ACopyIsIndependent) {
    auto texte = Texte(3);
    auto copie = texte;
    copie.MetsAttribut(0, 1, 1);
    copie.MetsUnite(0, u'y');
    EXPECT_EQ(Texte(3), texte);
    EXPECT_NE(ChaineN(3, u'x'), copie.DonneTexte());
}

/// What the calling thread has had of a processor, in nanoseconds: other processes do not count.
std::int64_t TempsProcesseur() {
    timespec temps{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &temps);
    return std::int64_t{temps.tv_sec} * 1000000000 + temps.tv_nsec;
}

TEST(AttributedString, RunsInDocumentOrderCostConstantTimeEach) {
    // A cost that grew with the number of runs would make ten times the runs a hundred times
    // dearer; the bound leaves room for caches and a processor that others use too.
    auto const duree = [](int nombre) {
        auto meilleure = std::numeric_limits<std::int64_t>::max();
        for (int essai = 0; essai < 7; ++essai) {
            auto texte = Texte(nombre * 2);
            auto const debut = TempsProcesseur();
            for (int rang = 0; rang < nombre; ++rang) {
                texte.MetsAttribut(rang * 2, 1 + rang % 2,
                                   static_cast<std::uint16_t>(1 + rang % 9));
            }
            meilleure = std::min(meilleure, TempsProcesseur() - debut);
            EXPECT_EQ(static_cast<std::size_t>(nombre), texte.DonnePlages().size());
        }
        return meilleure;
    };
    auto const dixMille = duree(10000);
    EXPECT_LT(duree(100000), dixMille * 40);
}

} // namespace
