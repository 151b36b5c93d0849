// SPDX-License-Identifier: MPL-2.0
#include "CodageTexteJson.h"

#include "DocumentsJson.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace std::string_literals;

TEST(JsonTextCoding, WritesTheBase64OfTheUtf8Bytes) {
    EXPECT_TRUE(EncodeTexteJson({}).EstVide());
    EXPECT_EQ(U(u"bg=="), EncodeTexteJson(U(u"n")));
    EXPECT_EQ(U(u"QcOp"), EncodeTexteJson(U(u"A\u00E9")));
    EXPECT_EQ(U(u"8J+YgA=="), EncodeTexteJson(U(u"\U0001F600")));
    EXPECT_EQ(U(u"77u/YQ=="), EncodeTexteJson(U(u"\uFEFFa")));
    EXPECT_EQ(UniChaine::DepuisUtf8(B64("a\0b"s)), EncodeTexteJson(UniChaine(u"a\0b", 3)));
}

TEST(JsonTextCoding, HalfOfAPairIsWrittenAsAQuestionMark) {
    char16_t const unites[] = {u'a', 0xD83D, u'b', 0xDE00};
    EXPECT_EQ(UniChaine::DepuisUtf8(B64("a?b?")), EncodeTexteJson(UniChaine(unites, 4)));
}

TEST(JsonTextCoding, ReadsWhatItWrote) {
    for (auto const& texte :
         {U(u""), U(u"a"), U(u"ab"), U(u"abc"), U(u"d’été"), U(u"e\u0301"),
          U(u"\U0001F600\U0010FFFF"), U(u"\uFEFF"), U(u"\x07\x11"), U(u"\n\r\t")}) {
        EXPECT_EQ(texte, DecodeTexteJson(EncodeTexteJson(texte).VersUtf8()));
    }
}

TEST(JsonTextCoding, DecodedTextEndsAtItsFirstNul) {
    EXPECT_EQ(U(u"a"), DecodeTexteJson(B64("a\0b"s)));
    EXPECT_TRUE(DecodeTexteJson(B64("\0"s)).EstVide());
    EXPECT_TRUE(DecodeTexteJson(B64("\0\0\0abc"s)).EstVide());
    EXPECT_EQ(U(u"abc"), DecodeTexteJson(B64("abc\0"s)));
}

TEST(JsonTextCoding, WhatDoesNotDecodeGivesWhatTheDecoderMadeOfIt) {
    EXPECT_TRUE(DecodeTexteJson("").EstVide());
    EXPECT_TRUE(DecodeTexteJson("!!!!").EstVide());
    EXPECT_TRUE(DecodeTexteJson("=").EstVide());
    EXPECT_TRUE(DecodeTexteJson("Q").EstVide()) << "six bits are no byte";
    EXPECT_EQ(U(u"A"), DecodeTexteJson("QQ"));
    EXPECT_EQ(U(u"AB"), DecodeTexteJson("QUI"));
    EXPECT_EQ(U(u"ABC"), DecodeTexteJson(" Q-U\nJ_D\t"));
    EXPECT_EQ(U(u"été"), DecodeTexteJson(B64("été")));
}

TEST(JsonTextCoding, BytesThatAreNoUtf8BecomeReplacementCharacters) {
    EXPECT_EQ(U(u"a\uFFFDb"), DecodeTexteJson(B64("a\xFF"
                                                  "b")));
    EXPECT_FALSE(DecodeTexteJson(B64("\xE2\x82")).EstVide());
    EXPECT_FALSE(DecodeTexteJson(B64("\xED\xA0\x80")).EstVide()) << "a surrogate in UTF-8";
}

TEST(JsonTextCoding, TextsFarBeyondTheFirstBufferGoThereAndBack) {
    for (int const longueur : {255, 256, 257, 3071, 3072, 3073, 1000000}) {
        auto texte = sdd::T(sdd::ChaineN(longueur, u'é'));
        texte.Ajoute(U(u"\U0001F600"));
        auto const code = EncodeTexteJson(texte).VersUtf8();
        EXPECT_EQ(B64(texte.VersUtf8()), code);
        EXPECT_EQ(texte, DecodeTexteJson(code));
    }
}

} // namespace
