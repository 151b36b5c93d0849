// SPDX-License-Identifier: MPL-2.0
#include "coeur/Paragraphes.h"

#include <gtest/gtest.h>

#include <random>

using compagnon::Decoupe;
using compagnon::FinDeLigne;
using compagnon::Recompose;
using compagnon::TexteDecoupe;

namespace {

std::vector<std::u16string> Textes(std::string_view octets) {
    std::vector<std::u16string> textes;
    for (auto const& paragraphe : Decoupe(octets).paragraphes) {
        textes.push_back(*paragraphe.texte);
    }
    return textes;
}

using Liste = std::vector<std::u16string>;

} // namespace

TEST(Paragraphs, EndWithAnyLineEnd) {
    EXPECT_EQ(Textes("a\nb\r\nc\rd"), (Liste{u"a", u"b", u"c", u"d"}));
    TexteDecoupe const texte = Decoupe("a\nb\r\nc\rd");
    EXPECT_EQ(texte.paragraphes[0].fin, FinDeLigne::LineFeed);
    EXPECT_EQ(texte.paragraphes[1].fin, FinDeLigne::Les2);
    EXPECT_EQ(texte.paragraphes[2].fin, FinDeLigne::RetourChariot);
    EXPECT_EQ(texte.paragraphes[3].fin, FinDeLigne::Aucune);
}

TEST(Paragraphs, ALastLineEndMakesNoParagraphOfItsOwn) {
    EXPECT_EQ(Textes("a\n"), Liste{u"a"});
    EXPECT_EQ(Textes("a\n\n"), (Liste{u"a", u""}));
    EXPECT_EQ(Textes("\n"), Liste{u""});
    EXPECT_EQ(Textes("\r\r\n"), (Liste{u"", u""}));
}

TEST(Paragraphs, OfAnEmptyFileAreOneEmptyOne) {
    EXPECT_EQ(Textes(""), Liste{u""});
    EXPECT_EQ(Textes("\xEF\xBB\xBF"), Liste{u""});
}

TEST(Paragraphs, DoNotHoldTheByteOrderMark) {
    EXPECT_EQ(Textes("\xEF\xBB\xBFété\n"), Liste{u"été"});
    EXPECT_TRUE(Decoupe("\xEF\xBB\xBFété\n").marque);
    // A second one is a character like any other.
    EXPECT_EQ(Textes("\xEF\xBB\xBF\xEF\xBB\xBF"), Liste{u"\uFEFF"});
}

TEST(Paragraphs, ALineSeparatorOfUnicodeIsTextAndNoEnd) {
    EXPECT_EQ(Textes("a\u2028b\u2029c\u0085d\vf\f"), Liste{u"a\u2028b\u2029c\u0085d\vf\f"});
}

TEST(Paragraphs, GoTogetherAgainByteForByteForAnyRandomFile) {
    std::mt19937 moteur(5);
    std::string_view const pieces[] = {"a", "é", "\n", "\r", "\r\n", "\U0001F600", "\xEF\xBB\xBF"};
    for (int tour = 0; tour < 20000; ++tour) {
        std::string octets;
        for (auto reste = moteur() % 12; reste > 0; --reste) {
            octets += pieces[moteur() % std::size(pieces)];
        }
        TexteDecoupe const texte = Decoupe(octets);
        ASSERT_EQ(Recompose(texte), octets);
        ASSERT_EQ(texte.paragraphes.size(), compagnon::CompteParagraphes(octets));
        ASSERT_FALSE(texte.paragraphes.empty());
    }
}
