// SPDX-License-Identifier: MPL-2.0
#include "DocumentsJson.h"

#include <gtest/gtest.h>

#include <climits>
#include <stdexcept>
#include <string>

namespace {

using namespace std::string_literals;

TEST(ZoneReader, DocumentsWithoutZonesHandOutNothing) {
    for (auto const& document : {
             ""s,
             "{}"s,
             R"({"Zones":[]})"s,
             R"({"Zones":null})"s,
             R"({"Zones":{}})"s,
             R"({"Zones":{"Nom":"bg==","Texte":"bg=="}})"s,
             R"({"Zones":"bg=="})"s,
             R"({"Zones":3})"s,
             R"({"Zones":true})"s,
             R"({"zones":[{}]})"s, // keys are told apart by case
             R"({"Autres":[{}]})"s,
             "[]"s,
             R"([{"Zones":[{}]}])"s,
             "null"s,
             "true"s,
             "3"s,
             R"("Zones")"s,
             " \t\r\n"s,
         }) {
        auto const lecture = LisTout(document);
        EXPECT_TRUE(lecture.zones.empty()) << document;
        EXPECT_EQ("", lecture.erreur) << document;
    }
}

TEST(ZoneReader, AZoneOfNameAndTextAloneHasNoRunsAndAnEmptySelection) {
    auto const zones = LisTout(Liste(Zone("nom", "Un texte."))).zones;
    ASSERT_EQ(1U, zones.size());
    EXPECT_EQ(U(u"nom"), zones[0].nom);
    EXPECT_EQ(U(u"Un texte."), zones[0].texte);
    EXPECT_EQ(0, zones[0].debutSel);
    EXPECT_EQ(0, zones[0].finSel);
    EXPECT_TRUE(zones[0].styles.empty());
}

TEST(ZoneReader, ReadsEveryMemberWhateverTheirOrder) {
    auto const zones =
        LisTout(Liste(R"({"FinSel":4,"InfosStyle":[{"Style":2,"Fin":9,"Debut":4},)"
                      R"({"Fin":12,"Debut":11,"Style":1}],"DebutSel":3,)" +
                      MembreTexte("Texte", "t") + ',' + MembreTexte("Nom", "n") + '}'))
            .zones;
    ASSERT_EQ(1U, zones.size());
    EXPECT_EQ(U(u"n"), zones[0].nom);
    EXPECT_EQ(U(u"t"), zones[0].texte);
    EXPECT_EQ(3, zones[0].debutSel);
    EXPECT_EQ(4, zones[0].finSel);
    EXPECT_EQ((std::vector<contrat::PlageDeStyle>{{4, 9, 2}, {11, 12, 1}}), zones[0].styles);
}

TEST(ZoneReader, ZonesComeInTheDocumentsOrder) {
    auto const zones =
        LisTout(Liste(Zone("b", "1") + ',' + Zone("a", "2") + ',' + Zone("b", "3"))).zones;
    ASSERT_EQ(3U, zones.size());
    EXPECT_EQ(U(u"1"), zones[0].texte);
    EXPECT_EQ(U(u"2"), zones[1].texte);
    EXPECT_EQ(U(u"3"), zones[2].texte);
}

TEST(ZoneReader, OnlyTheLowSixteenBitsOfAStyleCount) {
    auto const zones = LisTout(Liste(Zone("n", "t",
                                          R"("InfosStyle":[{"Debut":3,"Fin":7,"Style":65537},)"
                                          R"({"Debut":0,"Fin":1,"Style":-1},)"
                                          R"({"Debut":0,"Fin":1,"Style":65536},)"
                                          R"({"Debut":0,"Fin":1,"Style":2147483647}])")))
                           .zones;
    ASSERT_EQ(1U, zones.size());
    EXPECT_EQ(
        (std::vector<contrat::PlageDeStyle>{{3, 7, 1}, {0, 1, 65535}, {0, 1, 0}, {0, 1, 65535}}),
        zones[0].styles);
}

TEST(ZoneReader, ARunThatEndsBeforeItStartsHasALengthThatWrapped) {
    auto const zones = LisTout(Liste(Zone("n", "t",
                                          R"("InfosStyle":[{"Debut":7,"Fin":3,"Style":1},)"
                                          R"({"Debut":-2147483648,"Fin":2147483647,"Style":1}])")))
                           .zones;
    ASSERT_EQ(1U, zones.size());
    auto const& styles = zones[0].styles;
    EXPECT_EQ((std::vector<contrat::PlageDeStyle>{{7, 3, 1}, {INT_MIN, INT_MAX, 1}}), styles);
    EXPECT_EQ(-4, styles[0].DonneLongueur());
    EXPECT_EQ(-1, styles[1].DonneLongueur());
}

TEST(ZoneReader, PositionsAreTakenAsTheyCome) {
    auto const zones =
        LisTout(Liste(Zone("n", "t",
                           R"("DebutSel":90,"FinSel":-3,"InfosStyle":[{"Debut":50,"Fin":60},)"
                           R"({"Debut":55,"Fin":58,"Style":2}])")))
            .zones;
    ASSERT_EQ(1U, zones.size());
    EXPECT_EQ(90, zones[0].debutSel);
    EXPECT_EQ(-3, zones[0].finSel);
    EXPECT_EQ((std::vector<contrat::PlageDeStyle>{{50, 60, 0}, {55, 58, 2}}), zones[0].styles);
}

TEST(ZoneReader, StylesThatAreNoListGiveAZoneWithoutRuns) {
    for (auto const* styles :
         {"null", "{}", R"({"Debut":1,"Fin":2,"Style":3})", "\"abc\"", "3", "true", "[]"}) {
        auto const lecture = LisTout(Liste(Zone("n", "t", Membre("InfosStyle", styles))));
        ASSERT_EQ(1U, lecture.zones.size()) << styles;
        EXPECT_TRUE(lecture.zones[0].styles.empty()) << styles;
        EXPECT_EQ("", lecture.erreur) << styles;
    }
}

TEST(ZoneReader, AnElementThatIsNoObjectIsNoZone) {
    auto const autres = R"(null,3,"abc",true,[],[{"Nom":"bg=="}])"s;
    auto melange = autres;
    melange.append(",").append(Zone("n", "t")).append(",").append(autres).append(",{}");
    for (auto const& devant : {""s, "/**/"s}) { // zone by zone, and as a whole
        EXPECT_TRUE(LisTout(devant + Liste(autres)).zones.empty());
        auto const zones = LisTout(devant + Liste(melange)).zones;
        ASSERT_EQ(2U, zones.size());
        EXPECT_EQ(U(u"t"), zones[0].texte);
        EXPECT_TRUE(zones[1].nom.EstVide());
    }
}

TEST(ZoneReader, ARunThatIsNoObjectReadsAsAnEmptyOne) {
    auto const plages = LisTout(Liste(R"({"InfosStyle":[null,3,"abc",[1,2],{}]})")).zones;
    ASSERT_EQ(1U, plages.size());
    EXPECT_EQ(std::vector<contrat::PlageDeStyle>(5, {0, 0, 0}), plages[0].styles);
}

TEST(ZoneReader, TextMembersOfAnotherTypeNeverFail) {
    // Whatever is no text reads as one where JsonCpp makes one of it, and as empty elsewhere.
    for (auto const* valeur : {"null", "[]", "{}", R"(["bg=="])", "1.5", "-7", "true", "false"}) {
        auto const lecture =
            LisTout(Liste("{" + Membre("Nom", valeur) + ',' + Membre("Texte", valeur) + "}"));
        EXPECT_EQ(1U, lecture.zones.size()) << valeur;
        EXPECT_EQ("", lecture.erreur) << valeur;
    }
    auto const zones = LisTout(Liste(R"({"Nom":[],"Texte":{"a":1}})")).zones;
    ASSERT_EQ(1U, zones.size());
    EXPECT_TRUE(zones[0].nom.EstVide());
    EXPECT_TRUE(zones[0].texte.EstVide());
}

TEST(ZoneReader, ANameOrTextIsCutAtItsFirstNul) {
    auto const zones = LisTout(Liste(Zone("ab\0cd"s, "\0texte"s))).zones;
    ASSERT_EQ(1U, zones.size());
    EXPECT_EQ(U(u"ab"), zones[0].nom);
    EXPECT_TRUE(zones[0].texte.EstVide());
}

TEST(ZoneReader, AnyTextComesThrough) {
    auto const zones =
        LisTout(Liste(Zone("clé \U0001F511", "\uFEFFe\u0301 d’été \U0001F600\t\u00A0\n\x07")))
            .zones;
    ASSERT_EQ(1U, zones.size());
    EXPECT_EQ(U(u"clé \U0001F511"), zones[0].nom);
    EXPECT_EQ(U(u"\uFEFFe\u0301 d’été \U0001F600\t\u00A0\n\x07"), zones[0].texte);
}

TEST(ZoneReader, TheLastOfTwoMembersWithTheSameNameCounts) {
    auto const zones = LisTout(R"({"Zones":[{},{},{}],"Zones":[)" +
                               Zone("n", "un", MembreTexte("Texte", "deux")) + "]}")
                           .zones;
    ASSERT_EQ(1U, zones.size());
    EXPECT_EQ(U(u"deux"), zones[0].texte);
}

TEST(ZoneReader, UnknownMembersAreLeftOut) {
    auto const lecture = LisTout(R"({"Version":"2","Zones":[)" +
                                 Zone("n", "t", R"("DebutSelection":"x","Langue":["fr"])") + "]}");
    EXPECT_EQ(1U, lecture.zones.size());
    EXPECT_EQ("", lecture.erreur);
}

TEST(ZoneReader, WhatTheReceiverThrowsEndsTheReading) {
    int recues = 0;
    EXPECT_THROW(LisListeDeZones(Liste("{},{},{}"),
                                 [&](ZoneRecue&& /*zone*/) {
                                     if (++recues == 2)
                                         throw std::logic_error("enough");
                                 }),
                 std::logic_error);
    EXPECT_EQ(2, recues);
}

TEST(ZoneReader, AHundredThousandZonesAreHandedOutInOrder) {
    constexpr int kNombre = 100000;
    std::string zones;
    for (int i = 0; i < kNombre; ++i) {
        zones += (i == 0 ? "" : ",") + Zone(std::to_string(i), "texte");
    }
    int rang = 0;
    LisListeDeZones(Liste(zones), [&](ZoneRecue&& zone) {
        EXPECT_EQ(rang, zone.nom.VersQString().toInt());
        ++rang;
    });
    EXPECT_EQ(kNombre, rang);
}

} // namespace
