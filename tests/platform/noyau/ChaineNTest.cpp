// SPDX-License-Identifier: MPL-2.0
#include "ChaineN.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <thread>
#include <vector>

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

TEST(ChaineN, BytesAreConvertedInTheEncodingGiven) {
    EXPECT_EQ(N(u"été 😀"), ChaineN("été 😀", UniChaine::kCodageLitteral));
    EXPECT_EQ(N(u"é"), ChaineN("\xE9", UniChaine::kCodageLatin1));
    EXPECT_EQ(N(u"é"), ChaineN("é", static_cast<UniChaine::eCodage>(0)));
    EXPECT_EQ(3, ChaineN("a\0bc", UniChaine::kCodageUtf8, 3).Longueur());
    EXPECT_TRUE(ChaineN(nullptr, UniChaine::kCodageUtf8, 3).EstVide());
}

TEST(ChaineN, OneConversionLeavesNothingBehindForTheNext) {
    auto const coupe = ChaineN("a\xE2\x82", UniChaine::kCodageUtf8);
    EXPECT_EQ(u'a', coupe[0]);
    EXPECT_EQ(u'\uFFFD', coupe[1]);
    EXPECT_EQ(N(u"abc"), ChaineN("abc", UniChaine::kCodageUtf8));
    EXPECT_EQ(N(u"\uFFFD"), ChaineN("\xAC", UniChaine::kCodageUtf8));
}

TEST(ChaineN, ALeadingByteOrderMarkIsText) {
    EXPECT_EQ(N(u"\uFEFFa"), ChaineN("\xEF\xBB\xBF"
                                     "a",
                                     UniChaine::kCodageUtf8));
}

TEST(ChaineN, TheConverterIsKeptUntilItIsReleased) {
    ChaineN::LibereConvertisseurPourCodage();
    EXPECT_FALSE(ChaineN::ConvertisseurEstTenu());
    EXPECT_EQ(N(u"a"), ChaineN("a", UniChaine::kCodageUtf8));
    EXPECT_TRUE(ChaineN::ConvertisseurEstTenu());
    ChaineN::LibereConvertisseurPourCodage();
    ChaineN::LibereConvertisseurPourCodage();
    EXPECT_FALSE(ChaineN::ConvertisseurEstTenu());
    EXPECT_EQ(N(u"é"), ChaineN("é", UniChaine::kCodageUtf8));
}

TEST(ChaineN, ThreadsMayConvertAndReleaseAtOnce) {
    std::vector<std::thread> fils(4);
    for (int fil = 0; fil < 4; ++fil) {
        fils[static_cast<std::size_t>(fil)] = std::thread([fil] {
            for (int tour = 0; tour < 2000; ++tour) {
                auto const codage =
                    (tour + fil) % 2 == 0 ? UniChaine::kCodageUtf8 : UniChaine::kCodageLatin1;
                EXPECT_EQ(N(u"abc"), ChaineN("abc", codage));
                if (tour % 7 == fil) {
                    ChaineN::LibereConvertisseurPourCodage();
                }
            }
        });
    }
    for (auto& fil : fils) {
        fil.join();
    }
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

TEST(ChaineN, ReplacingAndExtractingFollowTheOtherStringsRules) {
    auto texte = N(u"abcdef");
    EXPECT_EQ(N(u"ef"), texte.Extrais(4, INT_MAX));
    EXPECT_EQ(N(u"ab"), texte.Extrais(-2, 4));
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
