// SPDX-License-Identifier: MPL-2.0
#include "commun/EcritureJson.h"

#include <gtest/gtest.h>

using hote::EcritureJson;

namespace {

std::string Ecris(QString const& texte) {
    return EcritureJson().EcrisTexte(texte).DonneJson();
}

} // namespace

TEST(EcritureJson, MembersAndElementsStandInTheOrderGivenWithCommasBetween) {
    EcritureJson json;
    json.OuvreObjet().EcrisCle("b").EcrisEntier(-3).EcrisCle("a").OuvreTableau();
    json.EcrisBooleen(true).EcrisNul().OuvreObjet().FermeObjet().OuvreTableau().FermeTableau();
    json.FermeTableau().EcrisCle("c").EcrisTexte({}).FermeObjet();
    EXPECT_EQ(json.DonneJson(), R"({"b":-3,"a":[true,null,{},[]],"c":""})");
}

TEST(EcritureJson, ATextIsUtf8AndOnlyWhatMustBeIsEscaped) {
    EXPECT_EQ(Ecris(QStringLiteral("é\u4e2d/\"\\")), "\"é\u4e2d/\\\"\\\\\"");
    EXPECT_EQ(Ecris(QString()), "\"\"");
}

TEST(EcritureJson, ASurrogatePairIsOneCharacter) {
    EXPECT_EQ(Ecris(QString::fromUtf8("\U0001f600")), "\"\U0001f600\"");
    EXPECT_EQ(Ecris(QString::fromUtf8("\U0010ffff")), "\"\U0010ffff\"");
}

TEST(EcritureJson, HalfOfAPairKeepsItsUnit) {
    QChar const haut(0xD83D);
    QChar const bas(0xDE00);
    EXPECT_EQ(Ecris(QString(haut)), R"("\ud83d")");
    EXPECT_EQ(Ecris(QString(bas)), R"("\ude00")");
    EXPECT_EQ(Ecris(QString(bas) + haut), R"("\ude00\ud83d")");
    EXPECT_EQ(Ecris(QString(haut) + haut + bas), "\"\\ud83d\U0001f600\"");
    EXPECT_EQ(Ecris(QString(haut) + QLatin1Char('a')), R"("\ud83da")");
}

TEST(EcritureJson, NothingInATextLooksLikeTheEndOfALine) {
    QString const texte =
        QString::fromUcs4(U"\n\r\t\b\f\v\u007f\u0085\u009f\u2028\u2029", 11) + QChar(0);
    EXPECT_EQ(Ecris(texte),
              R"("\n\u000d\t\u0008\u000c\u000b\u007f\u0085\u009f\u2028\u2029\u0000")");
}

TEST(EcritureJson, TheWidestIntegersAreWrittenWhole) {
    EXPECT_EQ(EcritureJson().EcrisEntier(-2147483648LL).DonneJson(), "-2147483648");
    EXPECT_EQ(EcritureJson().EcrisEntier(2147483647).DonneJson(), "2147483647");
}
