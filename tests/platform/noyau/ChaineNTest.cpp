// SPDX-License-Identifier: MPL-2.0
#include "ChaineN.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>

namespace {

using sdd::ChaineN;
using sdd::T;

ChaineN N(char16_t const* texte) {
    // Not QString::fromUtf16, which takes a leading byte order mark away.
    return T(UniChaine(texte, static_cast<int>(std::char_traits<char16_t>::length(texte))));
}

TEST(ChaineN, AFillRepeatsOneUnitAndNothingBelowOne) {
    EXPECT_EQ(N(u"\a\a\a"), ChaineN(3, u'\a'));
    EXPECT_TRUE(ChaineN(0, u'x').EstVide());
    EXPECT_TRUE(ChaineN(INT_MIN, u'x').EstVide());
}

TEST(ChaineN, UnitsOutsideReadAsZeroAndAreNotChanged) {
    auto texte = N(u"abc");
    EXPECT_EQ(u'c', texte[2]);
    EXPECT_EQ(u'\0', texte[3]);
    EXPECT_EQ(u'\0', texte[-1]);
    texte.MetsUnite(1, u'X');
    texte.MetsUnite(3, u'Y');
    texte.MetsUnite(-1, u'Z');
    EXPECT_EQ(N(u"aXc"), texte);
}

TEST(ChaineN, ReplacingFollowsTheOtherStringsRules) {
    auto texte = N(u"abcdef");
    EXPECT_FALSE(texte.Remplace(7, 0, N(u"x")));
    EXPECT_FALSE(texte.Remplace(0, -1, N(u"x")));
    EXPECT_TRUE(texte.Remplace(3, INT_MAX, texte));
    EXPECT_EQ(N(u"abcabcdef"), texte);
}

TEST(ChaineN, ConvertingBetweenTheTwoStringsCopiesNoText) {
    UniChaine const uni(u"abc", 3);
    auto const chaine = T(uni);
    EXPECT_EQ(uni.VersQString().constData(), chaine.VersQString().constData());
    EXPECT_EQ(uni, T(chaine));
}

} // namespace
