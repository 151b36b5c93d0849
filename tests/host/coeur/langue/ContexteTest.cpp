// SPDX-License-Identifier: MPL-2.0
#include "langue/Contexte.h"

#include <gtest/gtest.h>

using hote::DonneContexte;
using hote::DonnePourTerminal;

namespace {

QString S(char const* utf8) {
    return QString::fromUtf8(utf8);
}

} // namespace

TEST(Contexte, AShortTextIsGivenWhole) {
    auto const contexte = DonneContexte(S("un mot ici"), 3, 6, 30);
    EXPECT_EQ(contexte.avant, S("un "));
    EXPECT_EQ(contexte.apres, S(" ici"));
    EXPECT_FALSE(contexte.coupeAvant);
    EXPECT_FALSE(contexte.coupeApres);
}

TEST(Contexte, ALongTextIsCutBetweenWords) {
    auto const contexte = DonneContexte(S("premier second faute dernier fin"), 15, 20, 9);
    EXPECT_EQ(contexte.avant, S("second "));
    EXPECT_EQ(contexte.apres, S(" dernier"));
    EXPECT_TRUE(contexte.coupeAvant);
    EXPECT_TRUE(contexte.coupeApres);
}

TEST(Contexte, ATextWithoutSpacesIsCutButNeverInsideAPair) {
    QString const texte = S("😀😀😀X😀😀😀");
    for (int largeur = 0; largeur < 8; ++largeur) {
        auto const contexte = DonneContexte(texte, 6, 7, largeur);
        EXPECT_LE(contexte.avant.size(), largeur);
        EXPECT_EQ(contexte.avant.size() % 2, 0) << largeur;
        EXPECT_EQ(contexte.apres.size() % 2, 0) << largeur;
    }
}

TEST(Contexte, TheEndsOfATextAreNoReasonToCut) {
    auto const contexte = DonneContexte(S("mot"), 0, 3, 5);
    EXPECT_TRUE(contexte.avant.isEmpty() && contexte.apres.isEmpty());
    EXPECT_FALSE(contexte.coupeAvant || contexte.coupeApres);
}

TEST(DonnePourTerminal, NothingThatATerminalObeysIsLeft) {
    EXPECT_EQ(DonnePourTerminal(S("a\u001b[2Jb\u009bc\u0007\n")), S("a·[2Jb·c··"));
    EXPECT_EQ(DonnePourTerminal(S("a\u2028d\u2029")), S("a·d·"));
    EXPECT_EQ(DonnePourTerminal(QString(QChar(0xD800)) + QChar(0)), S("··"));
}

TEST(DonnePourTerminal, WhatTurnsTheReadingDirectionOrDoesNotShowIsSpelledOut) {
    EXPECT_EQ(DonnePourTerminal(S("a\u202etxt.exe\u2066b\u200f")),
              S("a<U+202E>txt.exe<U+2066>b<U+200F>"));
    EXPECT_EQ(DonnePourTerminal(S("pay\u200bpal\ufeff\u2060\U000e0041")),
              S("pay<U+200B>pal<U+FEFF><U+2060><U+E0041>"));
    EXPECT_EQ(DonnePourTerminal(S("pay\u200dpal \u200cx")), S("pay<U+200D>pal <U+200C>x"));
}

TEST(DonnePourTerminal, JoinersStayWhereScriptsAndPicturesNeedThem) {
    EXPECT_EQ(DonnePourTerminal(S("می\u200cخواهم 👩\u200d🔬")), S("می\u200cخواهم 👩\u200d🔬"));
}

TEST(DonnePourTerminal, WhatReadsAsTextStays) {
    EXPECT_EQ(DonnePourTerminal(S("é e\u0301 😀 « l’été »\tfin")), S("é e\u0301 😀 « l’été » fin"));
    EXPECT_EQ(DonnePourTerminal(S("exem\u00adple")), S("exemple"));
}
