// SPDX-License-Identifier: MPL-2.0
#include "ZoneJson.h"

#include "DocumentsJson.h"

#include <gtest/gtest.h>

#include <json/value.h>

#include <climits>
#include <string>

namespace {

using Plages = TexteAvecAttributs::Plages;

TEST(ZoneWriter, AZoneWithoutRunsIsNameAndTextInThatOrderAndALineFeed) {
    EXPECT_EQ("{\"Nom\":\"bg==\",\"Texte\":\"QcOp\"}\n",
              ZoneVersJson({}, U(u"A\u00E9"), U(u"n")).VersUtf8());
    EXPECT_EQ("{\"Nom\":\"\",\"Texte\":\"\"}\n", ZoneVersJson({}, {}, {}).VersUtf8());
}

TEST(ZoneWriter, RunsComeFirstInTheOrderOfTheList) {
    EXPECT_EQ("{\"InfosStyle\":[{\"Debut\":3,\"Fin\":7,\"Style\":1},{\"Debut\":0,\"Fin\":2,"
              "\"Style\":65535}],\"Nom\":\"bg==\",\"Texte\":\"dA==\"}\n",
              ZoneVersJson({{3, 7, 1}, {0, 2, 65535}}, U(u"t"), U(u"n")).VersUtf8());
}

TEST(ZoneWriter, ARunThatEndsBeforeItStartsIsWrittenAsItWasRead) {
    EXPECT_EQ(
        "{\"InfosStyle\":[{\"Debut\":7,\"Fin\":3,\"Style\":1}],\"Nom\":\"\",\"Texte\":\"\"}\n",
        ZoneVersJson({{7, 3, 1}}, {}, {}).VersUtf8());
    EXPECT_EQ("{\"InfosStyle\":[{\"Debut\":-2147483648,\"Fin\":2147483647,\"Style\":0}],\"Nom\":"
              "\"\",\"Texte\":\"\"}\n",
              ZoneVersJson({{INT_MIN, INT_MAX, 0}}, {}, {}).VersUtf8());
}

TEST(ZoneWriter, AnAttributedStringHasNoNameAndWritesItsRunsAsItStoresThem) {
    EXPECT_EQ("{\"Texte\":\"\"}\n", ChaineAttribueeVersJson({}).VersUtf8());
    EXPECT_EQ("{\"Texte\":\"YWJj\"}\n", ChaineAttribueeVersJson(A(u"abc")).VersUtf8());
    auto texte = A(u"abcdef");
    texte.MetsAttribut(4, 2, 9);
    texte.MetsAttribut(1, 2, 65535);
    EXPECT_EQ("{\"InfosStyle\":[{\"Debut\":1,\"Fin\":3,\"Style\":65535},{\"Debut\":4,\"Fin\":6,"
              "\"Style\":9}],\"Texte\":\"YWJjZGVm\"}\n",
              ChaineAttribueeVersJson(texte).VersUtf8());
}

TEST(ZoneWriter, TheDocumentIsPlainAsciiWhateverTheText) {
    auto const json = ZoneVersJson({}, U(u"\"\\\n\u2028é\U0001F600"), U(u"</script>")).VersUtf8();
    for (char const octet : json) {
        EXPECT_TRUE(octet == '\n' || (octet >= ' ' && octet < 0x7F));
    }
    EXPECT_EQ('\n', json.back());
    EXPECT_EQ(json.size() - 1, json.find('\n'));
}

TEST(SingleZoneReader, AnEmptyDocumentGivesEmptyTextAndLeavesTheName) {
    auto nom = U(u"unchanged");
    EXPECT_EQ(TexteAvecAttributs(), JsonVersChaineAttribuee({}, nom));
    EXPECT_EQ(U(u"unchanged"), nom);
}

TEST(SingleZoneReader, ADocumentWithoutANameEmptiesTheName) {
    for (auto const* json : {u"{}", u"null", u"[]", u"not JSON", u"{\"Texte\":\"\"}", u" "}) {
        auto nom = U(u"old");
        EXPECT_EQ(0, JsonVersChaineAttribuee(U(json), nom).Longueur());
        EXPECT_TRUE(nom.EstVide());
    }
}

TEST(SingleZoneReader, ReadsNameTextAndRuns) {
    UniChaine nom;
    auto const texte = JsonVersChaineAttribuee(
        U(u"{\"Nom\":\"bg==\",\"Texte\":\"YWJjZGVm\",\"InfosStyle\":[{\"Debut\":1,\"Fin\":3,"
          u"\"Style\":65537},{\"Debut\":4,\"Fin\":99,\"Style\":2}]}"),
        nom);
    EXPECT_EQ(U(u"n"), nom);
    EXPECT_EQ(U(u"abcdef"), TexteDe(texte));
    EXPECT_EQ((Plages{{1, 3, 1}, {4, 6, 2}}), texte.DonnePlages());
}

TEST(SingleZoneReader, RunsThatAreNoListAndRunsWithoutSenseLeaveThePlainText) {
    for (auto const* styles :
         {u"{}", u"null", u"\"x\"", u"3", u"[]", u"[null,{},3]",
          u"[{\"Debut\":3,\"Fin\":1,\"Style\":1}]", u"[{\"Debut\":1,\"Fin\":1,\"Style\":1}]",
          u"[{\"Debut\":50,\"Fin\":60,\"Style\":1}]", u"[{\"Debut\":1,\"Fin\":2,\"Style\":65536}]",
          u"[{\"Debut\":-2147483648,\"Fin\":2147483647,\"Style\":1}]",
          u"[{\"Debut\":2147483647,\"Fin\":-2147483648,\"Style\":1}]"}) {
        auto json = U(u"{\"Texte\":\"YWJj\",\"InfosStyle\":");
        json.Ajoute(U(styles));
        json.Ajoute(U(u"}"));
        UniChaine nom;
        EXPECT_EQ(A(u"abc"), JsonVersChaineAttribuee(json, nom))
            << testing::PrintToString(U(styles));
    }
}

TEST(SingleZoneReader, ARunThatIsNoneRaisesTheErrorAfterTheNameWasTaken) {
    auto nom = U(u"old");
    try {
        JsonVersChaineAttribuee(U(u"{\"Nom\":\"bg==\",\"InfosStyle\":[{\"Debut\":\"1\"}]}"), nom);
        ADD_FAILURE() << "nothing was thrown";
    } catch (Json::RuntimeError const& erreur) {
        EXPECT_STREQ("Type is not convertible to int", erreur.what());
    }
    EXPECT_EQ(U(u"n"), nom);
}

TEST(SingleZoneReader, TextThatHoldsANulIsCutThereAndItsRunsWithIt) {
    auto texte = TexteAvecAttributs(sdd::T(UniChaine(u"ab\0cd", 5)));
    texte.MetsAttribut(1, 3, 6);
    UniChaine nom;
    auto const relu = JsonVersChaineAttribuee(ChaineAttribueeVersJson(texte), nom);
    EXPECT_EQ(U(u"ab"), TexteDe(relu));
    EXPECT_EQ((Plages{{1, 2, 6}}), relu.DonnePlages());
}

} // namespace
