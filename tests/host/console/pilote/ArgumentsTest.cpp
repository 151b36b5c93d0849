// SPDX-License-Identifier: MPL-2.0
#include "console/pilote/Arguments.h"

#include <QJsonDocument>

#include <gtest/gtest.h>

using hote::Arguments;
using hote::ErreurRequete;

namespace {

Arguments Lis(char const* json) {
    return Arguments(QJsonDocument::fromJson(json).object());
}

} // namespace

TEST(Arguments, AnIntegerHasNoFractionAndFitsIn32Bits) {
    for (char const* json : {R"({"n":7})", R"({"n":7.0})", R"({"n":70e-1})"}) {
        EXPECT_EQ(Lis(json).DonneEntier("n"), 7) << json;
    }
    EXPECT_EQ(Lis(R"({"n":-2147483648})").DonneEntier("n"), -2147483648);
    EXPECT_EQ(Lis(R"({"n":2147483647})").DonneEntier("n"), 2147483647);
    for (char const* json :
         {R"({"n":2147483648})", R"({"n":-2147483649})", R"({"n":0.5})", R"({"n":1e300})",
          R"({"n":9223372036854775808})", R"({"n":"7"})", R"({"n":true})", R"({"n":null})", "{}"}) {
        EXPECT_THROW(Lis(json).DonneEntier("n"), ErreurRequete) << json;
    }
}

TEST(Arguments, ADefaultStandsForAMissingArgumentOnlyNotForAWrongOne) {
    EXPECT_EQ(Lis("{}").DonneEntier("n", 5), 5);
    EXPECT_THROW(Lis(R"({"n":null})").DonneEntier("n", 5), ErreurRequete);
    EXPECT_EQ(Lis("{}").DonneTexte("t", QStringLiteral("x")), QStringLiteral("x"));
    EXPECT_THROW(Lis(R"({"t":1})").DonneTexte("t", {}), ErreurRequete);
    EXPECT_TRUE(Lis("{}").DonneBooleen("b", true));
    EXPECT_THROW(Lis(R"({"b":1})").DonneBooleen("b", true), ErreurRequete);
}

TEST(Arguments, ALoneSurrogateIsTakenAsItIs) {
    QString const texte = Lis(R"({"t":"a\ud800b\udc00\ud83d\ude00"})").DonneTexte("t");
    ASSERT_EQ(texte.size(), 6);
    EXPECT_EQ(texte.at(1), QChar(0xD800));
    EXPECT_EQ(texte.at(3), QChar(0xDC00));
    EXPECT_EQ(texte.at(4), QChar(0xD83D));
}

TEST(Arguments, AnErrorNamesTheArgument) {
    try {
        Lis("{}").DonneBooleen("drapeau");
        FAIL();
    } catch (ErreurRequete const& erreur) {
        EXPECT_NE(std::string(erreur.what()).find("drapeau"), std::string::npos);
    }
}

TEST(Arguments, AListHoldsObjectsOnly) {
    EXPECT_EQ(Lis(R"({"l":[{},{"a":1}]})").DonneObjets("l").size(), 2U);
    EXPECT_TRUE(Lis("{}").DonneObjets("l").empty());
    EXPECT_THROW(Lis(R"({"l":[{},1]})").DonneObjets("l"), ErreurRequete);
    EXPECT_THROW(Lis(R"({"l":{}})").DonneObjets("l"), ErreurRequete);
}
