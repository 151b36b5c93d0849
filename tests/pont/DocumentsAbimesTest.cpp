// SPDX-License-Identifier: MPL-2.0
// Documents that do not parse, or hardly: no crash, no error but the one for integers, and nothing
// handed out that the document does not say.
#include "DocumentsJson.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace {

using namespace std::string_literals;

std::string Exemple() {
    return Liste(Zone("un", "Une phrase.",
                      R"("DebutSel":1,"FinSel":2,"InfosStyle":[{"Debut":0,"Fin":3,"Style":1}])") +
                 ',' + Zone("deux", "Deux \U0001F600."));
}

std::string Repete(std::string const& motif, int fois) {
    std::string texte;
    for (int i = 0; i < fois; ++i) {
        texte += motif;
    }
    return texte;
}

TEST(DamagedDocuments, ThatAreNoJsonHandOutNothing) {
    for (auto const& document : {
             "not JSON"s,
             "<zones/>"s,
             "{"s,
             "["s,
             "}"s,
             "{\"Zones\""s,
             "{\"Zones\":"s,
             "{\"Zones\":["s,
             "{\"Zones\":]"s,
             "{\"Zones\":[,,,]}"s,
             "'Zones'"s,
             "{Zones:[{}]}"s,
             "\0"s,
             "\xFF\xFE{\0}\0"s,
             "/* never closed"s,
             "\"never closed"s,
             "nul"s,
             "tru"s,
             "-"s,
             "\x1B[0m"s,
         }) {
        auto const lecture = LisTout(document);
        EXPECT_EQ("", lecture.erreur) << document;
        EXPECT_TRUE(lecture.zones.empty()) << document;
    }
}

TEST(DamagedDocuments, CutAnywhereHandOutNothing) {
    for (auto const& devant : {""s, "/**/"s}) { // zone by zone, and as a whole
        auto const entier = devant + Exemple();
        ASSERT_EQ(2U, LisTout(entier).zones.size());
        for (std::size_t taille = 0; taille < entier.size(); ++taille) {
            auto const lecture = LisTout(entier.substr(0, taille));
            EXPECT_EQ("", lecture.erreur) << taille;
            EXPECT_TRUE(lecture.zones.empty()) << taille;
        }
    }
}

TEST(DamagedDocuments, BrokenBehindSoundZonesHandOutNoneOfThem) {
    for (auto const* suite :
         {"{", "{}{}", "{}]]", "{},", ",{}", "truex", "{\"a\":}", "{\"a\":\"\\uZZZZ\"}",
          "{\"a\":'b'}", "{\"DebutSel\":[],\"a\" 1}", "/* never closed"}) {
        auto const lecture = LisTout(Liste(Zone("n", "t") + ',' + suite));
        EXPECT_EQ("", lecture.erreur) << suite;
        EXPECT_TRUE(lecture.zones.empty()) << suite;
    }
}

TEST(DamagedDocuments, AnIntegerThatIsNoneIsNotRaisedWhereTheDocumentBreaksFurtherOn) {
    EXPECT_EQ("", LisTout(Liste(R"({"DebutSel":"3"},{"a":)")).erreur);
    EXPECT_EQ("", LisTout(Liste(R"({"DebutSel":"3"},{"a":truex})")).erreur);
}

TEST(DamagedDocuments, WhatFollowsTheDocumentIsLeftOut) {
    for (auto const* suite : {" ", "\n\n", "]", "}", "garbage", "{\"Zones\":[]}", ",", "\""}) {
        auto const lecture = LisTout(Exemple() + suite);
        EXPECT_EQ(2U, lecture.zones.size()) << suite;
        EXPECT_EQ("", lecture.erreur) << suite;
    }
}

TEST(DamagedDocuments, CommentsAreNoDamage) {
    auto const lecture = LisTout("// one\n/* two */{ // three\n\"Zones\": /* four */ [\n" +
                                 Zone("n", "t") + "/* five */ // six\n]/**/}//");
    ASSERT_EQ(1U, lecture.zones.size());
    EXPECT_EQ(U(u"t"), lecture.zones[0].texte);
}

TEST(DamagedDocuments, OneByteChangedIsNeverMoreThanOneErrorOrOtherZones) {
    auto const entier = Exemple();
    std::mt19937 hasard(20261121);
    for (int essai = 0; essai < 5000; ++essai) {
        auto document = entier;
        document[hasard() % document.size()] = static_cast<char>(hasard());
        auto const lecture = LisTout(document);
        EXPECT_TRUE(lecture.erreur.empty() || lecture.erreur == "Type is not convertible to int")
            << document;
        EXPECT_LE(lecture.zones.size(), 2U) << document;
    }
}

std::string Imbrique(int profondeur) {
    return R"({"x":)" + Repete("[", profondeur) + Repete("]", profondeur) + R"(,"Zones":[{}]})";
}

TEST(DamagedDocuments, NestingUpToTheLimitIsReadAndBeyondItHandsOutNothing) {
    EXPECT_EQ(1U, LisTout(Imbrique(248)).zones.size());
    EXPECT_EQ(1U, LisTout(Imbrique(249)).zones.size());
    for (int const profondeur : {250, 999, 1001, 100000, 1000000}) {
        auto const lecture = LisTout(Imbrique(profondeur));
        EXPECT_TRUE(lecture.zones.empty()) << profondeur;
        EXPECT_EQ("", lecture.erreur) << profondeur;
    }
}

TEST(DamagedDocuments, BracketsInsideTextsAreNoNesting) {
    auto const texte = Repete("[{", 1000) + R"(\"[)" + Repete("[", 1000);
    EXPECT_EQ(1U,
              LisTout(R"({"x":[[[[[[[[[")" + texte + R"("]]]]]]]]],"Zones":[{}]})").zones.size());
}

TEST(DamagedDocuments, NestingThatNeverEndsHandsOutNothing) {
    for (auto const* motif : {"[", "{\"a\":", "{\"Zones\":[", "[{\"Zones\":"}) {
        for (int const fois : {400, 999, 1001, 100000}) {
            auto const lecture = LisTout(Repete(motif, fois));
            EXPECT_EQ("", lecture.erreur) << motif << fois;
            EXPECT_TRUE(lecture.zones.empty()) << motif << fois;
        }
    }
}

TEST(DamagedDocuments, NumbersBeyondEveryRangeAreNoCrash) {
    for (auto const& nombre :
         {"1e400"s, "-1e400"s, "1e-400"s, Repete("9", 400), "0." + Repete("0", 400) + "1", "1e"s,
          "--1"s, "1.2.3"s, "0x10"s, "NaN"s, "Infinity"s}) {
        auto const lecture = LisTout(Liste(Zone("n", "t", Membre("DebutSel", nombre))));
        EXPECT_TRUE(lecture.erreur.empty() || lecture.erreur == "Type is not convertible to int")
            << nombre;
        EXPECT_LE(lecture.zones.size(), 1U) << nombre;
    }
}

TEST(DamagedDocuments, EscapesInTextMembersAreUndoneBeforeTheyAreDecoded) {
    auto const zones = LisTout(Liste(R"({"Nom":"\u0062g=\u003d","Texte":"Q\/\/\/"})")).zones;
    ASSERT_EQ(1U, zones.size());
    EXPECT_EQ(U(u"n"), zones[0].nom);
    auto const mauvais = LisTout(Liste(R"({"Nom":"\ud83d","Texte":"\uZZZZ"},{})"));
    EXPECT_EQ("", mauvais.erreur);
    EXPECT_TRUE(mauvais.zones.empty());
}

} // namespace
