// SPDX-License-Identifier: MPL-2.0
#include "UniChaine.h"

#include <gtest/gtest.h>

#include <climits>
#include <map>
#include <string>

namespace {

using namespace std::string_literals;

UniChaine U(char16_t const* texte) {
    return UniChaine(texte, static_cast<int>(std::char_traits<char16_t>::length(texte)));
}

UniChaine Litteral(char const* octets, int longueur = -1) {
    return UniChaine(octets, UniChaine::kCodageLitteral, longueur);
}

TEST(UniChaine, IsNoBiggerThanTheSharedTextItHolds) {
    EXPECT_EQ(sizeof(void*), sizeof(UniChaine));
}

TEST(UniChaine, TheLiteralEncodingHasTheHostsNumber) {
    EXPECT_EQ(-997, UniChaine::kCodageLitteral);
}

TEST(UniChaine, ANarrowLiteralIsReadAsUtf8UpToItsNul) {
    EXPECT_EQ(U(u"d’été 😀"), Litteral("d’été 😀"));
    EXPECT_EQ(U(u"ab"), Litteral("ab\0cd"));
}

TEST(UniChaine, AGivenLengthCountsBytesAndKeepsNul) {
    EXPECT_EQ(UniChaine(u"a\0b", 3), Litteral("a\0bc", 3));
    EXPECT_TRUE(Litteral("abc", 0).EstVide());
}

TEST(UniChaine, AnUnknownEncodingIsReadAsUtf8) {
    EXPECT_EQ(U(u"é"), UniChaine("é", static_cast<UniChaine::eCodage>(12)));
}

TEST(UniChaine, NullPointersGiveTheEmptyString) {
    EXPECT_TRUE(Litteral(nullptr).EstVide());
    EXPECT_TRUE(Litteral(nullptr, 5).EstVide());
    EXPECT_TRUE(UniChaine(static_cast<char16_t const*>(nullptr), 3).EstVide());
    EXPECT_TRUE(UniChaine(u"abc", 0).EstVide());
    EXPECT_TRUE(UniChaine(u"abc", -1).EstVide());
    EXPECT_EQ(U(u"ab"), UniChaine(u"abc", 2));
}

TEST(UniChaine, BytesThatDoNotDecodeBecomeReplacementCharacters) {
    auto const texte = Litteral("a\xFF"
                                "b");
    EXPECT_EQ(U(u"a\uFFFDb"), texte);
    EXPECT_EQ(u'\uFFFD', Litteral("\xE2\x82").VersQString().at(0).unicode());
}

TEST(UniChaine, ALeadingByteOrderMarkIsTextAndKeepsItsPlace) {
    EXPECT_EQ(U(u"\uFEFFab"), Litteral("\xEF\xBB\xBF"
                                       "ab"));
    EXPECT_EQ(U(u"\uFEFF\uFEFF"), UniChaine::DepuisUtf8("\xEF\xBB\xBF\xEF\xBB\xBF"));
    EXPECT_EQ("\xEF\xBB\xBF"
              "ab",
              U(u"\uFEFFab").VersUtf8());
}

TEST(UniChaine, Utf8GoesThereAndBackWithNulAndAstralCharacters) {
    std::string const octets = "a\0é€\U0001F600z\u0301"s;
    auto const texte = UniChaine::DepuisUtf8(octets);
    EXPECT_EQ(8, texte.Longueur());
    EXPECT_EQ(octets, texte.VersUtf8());
    EXPECT_EQ("", UniChaine().VersUtf8());
}

TEST(UniChaine, EachLoneSurrogateBecomesAQuestionMarkInUtf8) {
    char16_t const unites[] = {u'a', 0xD83D, u'b', 0xDE00, 0xDE00, 0xD83D, 0xD83D, 0xDE00, 0xD83D};
    EXPECT_EQ("a?b???\U0001F600?", UniChaine(unites, 9).VersUtf8());
}

TEST(UniChaine, LongTextsKeepTheirPairsWhereverTheyFall) {
    // Long enough for the conversion to be done in pieces, and with a pair across each even and
    // each odd place.
    for (int decalage = 0; decalage < 2; ++decalage) {
        QString texte(decalage, QLatin1Char('x'));
        std::string attendu(static_cast<std::size_t>(decalage), 'x');
        while (texte.size() < 200000) {
            texte += QString::fromUtf8("\U0001F600");
            attendu += "\U0001F600";
        }
        EXPECT_EQ(attendu, UniChaine(texte).VersUtf8());
    }
}

TEST(UniChaine, AnExtractLeavesOutWhatLiesOutside) {
    auto const texte = U(u"abcdef");
    EXPECT_EQ(U(u"bcd"), texte.Extrais(1, 3));
    EXPECT_EQ(U(u"ab"), texte.Extrais(-3, 5));
    EXPECT_EQ(U(u"ef"), texte.Extrais(4, 100));
    EXPECT_EQ(U(u"bcdef"), texte.Extrais(1, INT_MAX));
    EXPECT_TRUE(texte.Extrais(2, 0).EstVide());
    EXPECT_TRUE(texte.Extrais(2, -1).EstVide());
    EXPECT_TRUE(texte.Extrais(2, INT_MIN).EstVide());
    EXPECT_TRUE(texte.Extrais(6, 2).EstVide());
    EXPECT_TRUE(texte.Extrais(INT_MIN, INT_MAX).EstVide());
    EXPECT_TRUE(texte.Extrais(INT_MAX, INT_MAX).EstVide());
}

TEST(UniChaine, AnExtractMaySplitAPairWhereTheCallerAsks) {
    auto const moitie = U(u"a😀").Extrais(0, 2);
    ASSERT_EQ(2, moitie.Longueur());
    EXPECT_EQ(char16_t{0xD83D}, moitie.VersQString().at(1).unicode());
}

TEST(UniChaine, AReplacementPastTheEndIsCutThere) {
    auto texte = U(u"abcdef");
    EXPECT_TRUE(texte.Remplace(4, INT_MAX, U(u"XYZ")));
    EXPECT_EQ(U(u"abcdXYZ"), texte);
    EXPECT_TRUE(texte.Remplace(7, 0, U(u"!")));
    EXPECT_EQ(U(u"abcdXYZ!"), texte);
    EXPECT_TRUE(texte.Remplace(0, 4, UniChaine()));
    EXPECT_EQ(U(u"XYZ!"), texte);
}

TEST(UniChaine, AReplacementFromOutsideChangesNothing) {
    auto texte = U(u"abc");
    EXPECT_FALSE(texte.Remplace(4, 0, U(u"x")));
    EXPECT_FALSE(texte.Remplace(-1, 1, U(u"x")));
    EXPECT_FALSE(texte.Remplace(0, -1, U(u"x")));
    EXPECT_FALSE(texte.Remplace(INT_MAX, INT_MAX, U(u"x")));
    EXPECT_EQ(U(u"abc"), texte);
}

TEST(UniChaine, AStringCanBePutIntoItself) {
    auto texte = U(u"abc");
    EXPECT_TRUE(texte.Remplace(1, 1, texte));
    EXPECT_EQ(U(u"aabcc"), texte);
    texte.Ajoute(texte);
    EXPECT_EQ(U(u"aabccaabcc"), texte);
}

TEST(UniChaine, EqualityFoldsAndNormalisesNothing) {
    EXPECT_NE(U(u"é"), U(u"e\u0301"));
    EXPECT_NE(U(u"a"), U(u"A"));
    EXPECT_NE(U(u"a"), U(u"a "));
    EXPECT_EQ(UniChaine(), U(u""));
    EXPECT_EQ(kUniChaineNulle, UniChaine());
}

TEST(UniChaine, OrderGoesByCodeUnits) {
    EXPECT_LT(U(u"Z"), U(u"a"));
    EXPECT_LT(U(u"a"), U(u"ab"));
    EXPECT_LT(U(u"😀"), U(u"\uFFFD")); // by code points it would be the other way round
    std::map<UniChaine, int> const rangs{{U(u"b"), 2}, {U(u"a"), 1}};
    EXPECT_EQ(1, rangs.begin()->second);
}

TEST(UniChaine, ACopySharesItsTextUntilOneOfThemChanges) {
    auto const texte = U(u"abc");
    auto copie = texte;
    EXPECT_EQ(texte.VersQString().constData(), copie.VersQString().constData());
    copie.Ajoute(U(u"d"));
    EXPECT_EQ(U(u"abc"), texte);
}

} // namespace
