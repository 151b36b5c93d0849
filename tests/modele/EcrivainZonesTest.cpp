// SPDX-License-Identifier: MPL-2.0
#include "modele/EcrivainZones.h"

#include <gtest/gtest.h>
#include <json/json.h>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

using compagnon::EcrivainZones;

namespace {

Json::Value Lis(std::string const& document) {
    Json::Value racine;
    EXPECT_TRUE(Json::Reader().parse(document, racine, false)) << document;
    return racine;
}

} // namespace

TEST(ZoneWriter, WritesTheDocumentOfTheContract) {
    EcrivainZones ecrivain;
    EXPECT_TRUE(ecrivain.Ajoute("z1", u"Les chats", {0, 0}, {{4, 9, 1}}));
    EXPECT_TRUE(ecrivain.Ajoute("z2", u"", {0, 0}));
    EXPECT_EQ(ecrivain.Termine(),
              R"({"Zones":[{"Nom":"ejE=","Texte":"TGVzIGNoYXRz","DebutSel":0,"FinSel":0,)"
              R"("InfosStyle":[{"Debut":4,"Fin":9,"Style":1}]},)"
              R"({"Nom":"ejI=","Texte":"","DebutSel":0,"FinSel":0}]})");
}

TEST(ZoneWriter, WithoutZonesWritesAnEmptyList) {
    EXPECT_EQ(EcrivainZones().Termine(), R"({"Zones":[]})");
}

TEST(ZoneWriter, GivesWhatAJsonParserReadsBack) {
    EcrivainZones ecrivain;
    EXPECT_TRUE(ecrivain.Ajoute("zone é \"", u"\U0001F600 l'été\n\"\\", {2, 7},
                                {{0, 2, 3}, {2, 5, 0xFFFF}}));
    Json::Value const zone = Lis(*ecrivain.Termine())["Zones"][0];
    EXPECT_EQ(zone["Nom"].asString(), "em9uZSDDqSAi");
    EXPECT_EQ(zone["Texte"].asString(), "8J+YgCBsJ8OpdMOpCiJc");
    EXPECT_EQ(zone["DebutSel"].asInt(), 2);
    EXPECT_EQ(zone["FinSel"].asInt(), 7);
    ASSERT_EQ(zone["InfosStyle"].size(), 2U);
    EXPECT_EQ(zone["InfosStyle"][1]["Debut"].asInt(), 2);
    EXPECT_EQ(zone["InfosStyle"][1]["Fin"].asInt(), 5);
    EXPECT_EQ(zone["InfosStyle"][1]["Style"].asInt(), 0xFFFF);
}

TEST(ZoneWriter, WritesOnlyAsciiAndNoNul) {
    EcrivainZones ecrivain;
    EXPECT_TRUE(ecrivain.Ajoute("z", std::u16string{u'a', 0, 0xD800, u'b'}, {0, 0}));
    std::string const document = *ecrivain.Termine();
    EXPECT_TRUE(std::all_of(document.begin(), document.end(),
                            [](char c) { return c >= 0x20 && c < 0x7F; }));
    // a, two fillers, b: the offsets of what follows stay right.
    EXPECT_EQ(Lis(document)["Zones"][0]["Texte"].asString(), "YQcHYg==");
}

TEST(ZoneWriter, ADocumentOfExactlyTheLimitIsWrittenAndOneByteMoreIsNot) {
    EcrivainZones temoin;
    EXPECT_TRUE(temoin.Ajoute("z1", u"texte", {0, 0}, {{0, 5, 1}}));
    std::size_t const taille = temoin.Termine()->size();

    EcrivainZones juste(taille);
    EXPECT_TRUE(juste.Ajoute("z1", u"texte", {0, 0}, {{0, 5, 1}}));
    EXPECT_EQ(juste.Termine()->size(), taille);

    EcrivainZones trop(taille - 1);
    EXPECT_FALSE(trop.Ajoute("z1", u"texte", {0, 0}, {{0, 5, 1}}));
    EXPECT_FALSE(trop.Ajoute("z2", u"", {0, 0}));
    EXPECT_EQ(trop.Termine(), std::nullopt);
}

TEST(ZoneWriter, AZoneFarPastTheLimitIsRefusedBeforeItIsEncoded) {
    EcrivainZones ecrivain(1000);
    EXPECT_FALSE(ecrivain.Ajoute("z1", std::u16string(100000, u'a'), {0, 0}));
    EXPECT_EQ(ecrivain.Termine(), std::nullopt);
}

TEST(ZoneWriter, TheUsualLimitLeavesRoomBelowTheBusOwn) {
    EXPECT_LT(contrat::kLimiteReponse, 134217660U);
    EXPECT_GT(contrat::kLimiteReponse, 120U * 1024 * 1024);
}

TEST(ZoneWriter, TenTimesTheZonesAreNotMuchMoreThanTenTimesTheBytes) {
    auto const taille = [](int zones) {
        EcrivainZones ecrivain;
        for (int i = 0; i < zones; ++i) {
            EXPECT_TRUE(ecrivain.Ajoute("z" + std::to_string(i), u"Un paragraphe.", {0, 0}));
        }
        return ecrivain.Termine()->size();
    };
    EXPECT_LT(taille(100000), 11 * taille(10000));
}

TEST(ZoneWriter, WhatAZoneTakesAtMostIsToldBeforehand) {
    constexpr std::int32_t kMoins = std::numeric_limits<std::int32_t>::min();
    std::vector<compagnon::PlageDeStyle> const styles(3, {kMoins, kMoins, 0xFFFF});
    for (std::u16string const& texte : {std::u16string(), std::u16string(100, u'\u2019')}) {
        EcrivainZones ecrivain;
        EXPECT_TRUE(ecrivain.Ajoute("une zone", texte, {kMoins, kMoins}, styles));
        EXPECT_LE(ecrivain.Termine()->size(),
                  EcrivainZones::BorneDe("une zone", texte, styles.size()));
    }
}
