// SPDX-License-Identifier: MPL-2.0
#include "modele/Utf.h"
#include "modele/CodageBase64.h"

#include <gtest/gtest.h>

using namespace std::string_literals;
using namespace std::string_view_literals;

namespace {

std::string Base64(std::string_view octets) {
    std::string sortie;
    compagnon::AjouteBase64(octets, sortie);
    return sortie;
}

} // namespace

TEST(Utf, TextOfEveryWidthComesBackUnchanged) {
    std::u16string const texte = u"aé\u0301€\uFFFD\uFFFF\U00010000\U0001F600\U0010FFFF";
    std::string const octets = compagnon::Utf16VersUtf8(texte);
    EXPECT_EQ(octets, "aé\u0301€\uFFFD\xEF\xBF\xBF\U00010000\U0001F600\U0010FFFF");
    EXPECT_EQ(compagnon::Utf8VersUtf16(octets), texte);
}

TEST(Utf, EveryCodePointMakesTheRoundTrip) {
    for (char32_t point = 1; point <= 0x10FFFF; ++point) {
        if (point == 0xD800) {
            point = 0xE000;
        }
        std::u16string texte;
        if (point < 0x10000) {
            texte.push_back(static_cast<char16_t>(point));
        } else {
            texte.push_back(static_cast<char16_t>(0xD7C0 + (point >> 10)));
            texte.push_back(static_cast<char16_t>(0xDC00 + (point & 0x3FF)));
        }
        ASSERT_TRUE(compagnon::EstTransportable(texte));
        ASSERT_EQ(compagnon::Utf8VersUtf16(compagnon::Utf16VersUtf8(texte)), texte);
    }
}

TEST(Utf, WhatCannotTravelBecomesOneFillerAUnit) {
    std::u16string const texte = u"a\0b"s + std::u16string{0xD83D} + u"c" + std::u16string{0xDE00} +
                                 u"\U0001F600" + std::u16string{0xDBFF};
    EXPECT_FALSE(compagnon::EstTransportable(texte));
    std::u16string const rendu = compagnon::RendsTransportable(texte);
    EXPECT_EQ(rendu, u"a\u0007b\u0007c\u0007\U0001F600\u0007");
    EXPECT_EQ(rendu.size(), texte.size());
    EXPECT_TRUE(compagnon::EstTransportable(rendu));
    EXPECT_EQ(compagnon::Utf16VersUtf8(texte), "a\ab\ac\a\U0001F600\a");
}

TEST(Utf, ALowBeforeAHighSurrogateIsTwoLoneOnes) {
    std::u16string const texte{0xDE00, 0xD83D};
    EXPECT_EQ(compagnon::RendsTransportable(texte), u"\u0007\u0007");
}

TEST(Utf, RefusesWhatIsNotUtf8AndSaysWhere) {
    struct Cas {
        std::string_view octets;
        std::size_t position;
    };
    Cas const table[] = {
        {"\x80"sv, 0},
        {"a\xC3"sv, 1},
        {"ab\xC3(c"sv, 2},
        {"\xC0\x80"sv, 0},
        {"\xC1\xBF"sv, 0},
        {"\xE0\x80\x80"sv, 0},
        {"\xED\xA0\x80"sv, 0},
        {"\xED\xBF\xBF"sv, 0},
        {"\xF0\x80\x80\x80"sv, 0},
        {"\xF4\x90\x80\x80"sv, 0},
        {"\xF8\x88\x80\x80\x80"sv, 0},
        {"\xFF"sv, 0},
        {"caf\xE9"sv, 3},
        {"\xE2\x82"sv, 0},
        {"\xF0\x9F\x98"sv, 0},
    };
    for (Cas const& cas : table) {
        EXPECT_EQ(compagnon::PremierOctetNonUtf8(cas.octets), cas.position);
        EXPECT_FALSE(compagnon::Utf8VersUtf16(cas.octets).has_value());
    }
    EXPECT_EQ(compagnon::PremierOctetNonUtf8("é\0a"sv), std::string_view::npos);
    EXPECT_EQ(compagnon::PremierOctetNonUtf8(""), std::string_view::npos);
}

TEST(Base64, FollowsTheStandardAlphabetWithPadding) {
    EXPECT_EQ(Base64(""), "");
    EXPECT_EQ(Base64("f"), "Zg==");
    EXPECT_EQ(Base64("fo"), "Zm8=");
    EXPECT_EQ(Base64("foo"), "Zm9v");
    EXPECT_EQ(Base64("foob"), "Zm9vYg==");
    EXPECT_EQ(Base64("fooba"), "Zm9vYmE=");
    EXPECT_EQ(Base64("foobar"), "Zm9vYmFy");
    EXPECT_EQ(Base64("\0\xFF\xFE"sv), "AP/+");
    EXPECT_EQ(Base64("\xFB\xEF\xBE"sv), "++++");
}

TEST(Utf, AReplyByItselfNeverBeginsWithAByteOrderMark) {
    EXPECT_EQ(compagnon::RendsEnvoyable(u"\uFEFFa\uFEFF"), u"\aa\uFEFF");
    EXPECT_EQ(compagnon::RendsEnvoyable(u"a\uFEFF"), u"a\uFEFF");
    EXPECT_EQ(compagnon::RendsEnvoyable(u""), u"");
}

TEST(Utf, TheBytesToComeAreToldBeforehandAndNeverTooFew) {
    for (std::u16string const& texte :
         {std::u16string(), std::u16string(u"abc"), std::u16string(u"\u00e9t\u00e9 \u2019"),
          std::u16string(u"\U0001f600\U0001d11e"), std::u16string(u"\uffff\u0800\u07ff")}) {
        EXPECT_EQ(compagnon::OctetsEnUtf8(texte), compagnon::Utf16VersUtf8(texte).size());
    }
    std::u16string const demies{0xD800, u'a', 0xDC00, 0};
    EXPECT_GE(compagnon::OctetsEnUtf8(demies), compagnon::Utf16VersUtf8(demies).size());
}
