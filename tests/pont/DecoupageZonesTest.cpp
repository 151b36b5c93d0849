// SPDX-License-Identifier: MPL-2.0
// Long documents are read zone by zone where they have the plain form: both ways must find the
// same.
#include "DecoupageZones.h"

#include "DocumentsJson.h"

#include <gtest/gtest.h>

#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace {

using Forme = DecoupageZones::Forme;
using Morceaux = std::vector<std::string_view>;

Forme FormeDe(std::string_view document) {
    AnalyseurJson analyseur;
    return DecoupageZones(document, analyseur).DonneForme();
}

Morceaux Decoupe(std::string_view document) {
    AnalyseurJson analyseur;
    DecoupageZones decoupage(document, analyseur);
    EXPECT_EQ(Forme::Lisible, decoupage.DonneForme()) << document;
    Morceaux morceaux;
    for (std::string_view morceau; decoupage.PrendsSuivante(morceau);) {
        morceaux.push_back(morceau);
    }
    return morceaux;
}

TEST(ZoneCutting, FindsTheObjectsOfTheOneList) {
    EXPECT_EQ(Morceaux{}, Decoupe(R"({"Zones":[]})"));
    EXPECT_EQ(Morceaux{}, Decoupe(" {\t\"Zones\"\r:\n[ ] } \n"));
    EXPECT_EQ((Morceaux{"{}", "{ }"}), Decoupe(R"({"Zones":[{},{ }]})"));
    EXPECT_EQ((Morceaux{R"({"a":[{"b":"}]{["}]})", R"({"c":"\"}\\"})"}),
              Decoupe(R"({"Zones":[ {"a":[{"b":"}]{["}]} , {"c":"\"}\\"} ]})"));
}

TEST(ZoneCutting, PassesOverOtherMembersAndOverElementsThatAreNoObjects) {
    EXPECT_EQ(Morceaux{}, Decoupe("{}"));
    EXPECT_EQ(Morceaux{}, Decoupe(R"({"Zones":null})"));
    EXPECT_EQ(Morceaux{}, Decoupe(R"({"Zones":{"Zones":[{}]},"zones":[{}]})"));
    EXPECT_EQ(Morceaux{"{}"}, Decoupe(R"({"V":[1,{"a":-2}],"Zones":[{}],"x":{"Zones":[{}, {}]}})"));
    EXPECT_EQ((Morceaux{"{}", "{ }"}), Decoupe(R"({"Zones":[null,{},3,"{}",true,[{}],{ },[]]})"));
}

TEST(ZoneCutting, TakesTheLastOfTwoLists) {
    EXPECT_EQ(Morceaux{"{ }"}, Decoupe(R"({"Zones":[{},{}],"Zones":[{ }]})"));
    EXPECT_EQ(Morceaux{}, Decoupe(R"({"Zones":[{},{}],"Zones":[]})"));
    EXPECT_EQ(Morceaux{}, Decoupe(R"({"Zones":[{},{}],"Zones":null})"));
}

TEST(ZoneCutting, HasTheParserJudgeZonesThatHoldWhatIsUncommon) {
    for (auto const* zone : {R"({"a":1.5})", R"({"a":"\u0062"})", R"({"a":1234567890123456789012})",
                             R"({"":1,})", R"({"a":-})", R"({"a":[1.5,{"b":-1e3}]})"}) {
        EXPECT_EQ(Morceaux{zone}, Decoupe(Liste(zone)));
    }
    for (auto const* zone :
         {R"({"a":truex})", R"({"a":"\uZZZZ"})", R"({"a":[1}})", R"({"a" 1})", R"({1:2})",
          R"({"a":1 2})", R"({"a":"\x"})", R"({"a":'b'})", R"({"a":[1,]})"}) {
        EXPECT_EQ(Forme::Refusee, FormeDe(Liste(zone))) << zone;
    }
}

TEST(ZoneCutting, LeavesEveryOtherFormToTheParser) {
    for (auto const* document : {"",
                                 " ",
                                 "[]",
                                 "null",
                                 R"({"Zones":[1.5]})",
                                 R"({"Zones":[{}]]})",
                                 R"({"Zones":[{},]})",
                                 R"({"Zones":[,{}]})",
                                 R"({"Zones":[{} {}]})",
                                 R"({"Zones":[{}]} x)",
                                 R"({"Zones":[{}])",
                                 R"({"Zones":[{}})",
                                 R"({"Zones":[{)",
                                 R"({"Zones":[{")",
                                 R"({"Zones":[{"\)",
                                 R"({"Zones":[{}],"Autre":1.5})",
                                 R"({"\u005aones":[{}]})",
                                 R"({"Zones" [{}]})",
                                 R"({'Zones':[{}]})",
                                 "/**/{\"Zones\":[{}]}",
                                 "{\"Zones\":[{/**/}]}",
                                 "{\"Zones\":[{}]}//",
                                 "{\"Zones\":[{}/**/]}",
                                 "\xEF\xBB\xBF{\"Zones\":[]}",
                                 R"({"Zones":[{"a":[[[[[[[[[[]]]]]]]]]]}]})"}) {
        EXPECT_EQ(Forme::Autre, FormeDe(document)) << document;
    }
}

/// A comment in front has the parser take the whole, and changes nothing else.
std::string EnEntier(std::string const& document) {
    return "/**/" + document;
}

void CompareLesDeux(std::string const& document) {
    auto const parZone = LisTout(document);
    auto const entier = LisTout(EnEntier(document));
    EXPECT_EQ(entier.erreur, parZone.erreur) << document;
    ASSERT_EQ(entier.zones.size(), parZone.zones.size()) << document;
    for (std::size_t i = 0; i < entier.zones.size(); ++i) {
        EXPECT_EQ(entier.zones[i].nom, parZone.zones[i].nom) << document;
        EXPECT_EQ(entier.zones[i].texte, parZone.zones[i].texte) << document;
        EXPECT_EQ(entier.zones[i].debutSel, parZone.zones[i].debutSel) << document;
        EXPECT_EQ(entier.zones[i].finSel, parZone.zones[i].finSel) << document;
        EXPECT_EQ(entier.zones[i].styles, parZone.zones[i].styles) << document;
    }
}

TEST(ZoneCutting, FindsWhatTheParserFindsInAnyDocumentMadeOfItsWords) {
    static constexpr char const* kMots[] = {"{",
                                            "}",
                                            "[",
                                            "]",
                                            ",",
                                            ":",
                                            "\"",
                                            "\\",
                                            " ",
                                            "\n",
                                            "/",
                                            "/*",
                                            "*/",
                                            "//",
                                            "{}",
                                            "[]",
                                            "{},{}",
                                            "null",
                                            "true",
                                            "1",
                                            "-1.5",
                                            "2147483648",
                                            "\"Zones\"",
                                            "\"Zones\":[",
                                            "\"Nom\"",
                                            "\"bg==\"",
                                            "\"Texte\":\"dA==\"",
                                            "\"DebutSel\":",
                                            "\"InfosStyle\":[",
                                            "\"Fin\":3",
                                            "\"\\\"\"",
                                            "\"\\u0062\"",
                                            "\"a\\/\\n\"",
                                            "\"\\x\"",
                                            "\"Autre\":",
                                            "\"Zones\":null,",
                                            "truex",
                                            "-",
                                            "1e400",
                                            "12345678901234567890",
                                            "{\"\":1,}",
                                            "{\"Zones\":[",
                                            "]}",
                                            "{\"Nom\":\"bg==\"}"};
    std::mt19937 hasard(7);
    for (int essai = 0; essai < 20000; ++essai) {
        std::string document = essai % 2 == 0 ? "{\"Zones\":[" : "";
        for (auto reste = hasard() % 12; reste > 0; --reste) {
            document += kMots[hasard() % std::size(kMots)];
        }
        if (essai % 4 == 0) {
            document += "]}";
        }
        CompareLesDeux(document);
    }
}

TEST(ZoneCutting, FindsWhatTheParserFindsInADocumentWithSomeBytesChanged) {
    auto const sain = Liste(
        Zone("un", "Une \\ phrase.",
             R"("DebutSel":1,"FinSel":2,"InfosStyle":[{"Debut":0,"Fin":3,"Style":1}])") +
        ',' + R"({"Nom":"\u0062g=\u003d","Texte":"Q\/\/\/"})" + ',' + Zone("deux", "\U0001F600"));
    static constexpr char kOctets[] = "{}[]\",:\\/*019-.eE \n\t\0ntf";
    std::mt19937 hasard(8);
    for (int essai = 0; essai < 20000; ++essai) {
        auto document = sain;
        for (auto reste = 1 + hasard() % 3; reste > 0; --reste) {
            auto const ou = hasard() % document.size();
            auto const octet = kOctets[hasard() % (sizeof kOctets - 1)];
            switch (hasard() % 3) {
            case 0:
                document[ou] = octet;
                break;
            case 1:
                document.insert(ou, 1, octet);
                break;
            default:
                document.erase(ou, 1);
            }
        }
        CompareLesDeux(document);
    }
}

TEST(ZoneCutting, FindsWhatTheParserFindsWhereCommentsHoldQuotesAndBraces) {
    // The parser leaves out what follows a value: a piece cut too long would parse all the same.
    static constexpr char const* kMots[] = {
        "/*\"*/",   "/*}*/", "/*{*/", "//\"\n",      "//}\n",          "/**/",
        "{}",       "{",     "}",     ",",           "\"DebutSel\":1", "\"Nom\":\"/*\"",
        "{/*\"*/}", "},{",   "]}",    "\"\\\"/*\":1"};
    std::mt19937 hasard(9);
    for (int essai = 0; essai < 20000; ++essai) {
        std::string document = "{\"Zones\":[{";
        for (auto reste = 1 + hasard() % 6; reste > 0; --reste) {
            document += kMots[hasard() % std::size(kMots)];
        }
        CompareLesDeux(document + "}]}");
    }
}

} // namespace
