// SPDX-License-Identifier: MPL-2.0
// The one thing that reading a zone list may raise: an integer member that is none.
#include "DocumentsJson.h"

#include <gtest/gtest.h>

#include <climits>
#include <functional>
#include <string>

namespace {

struct Place {
    char const* nom;
    std::function<std::string(std::string const&)> zone; ///< a zone with the value there
    std::function<long long(ZoneRecue const&)> lue;
};

std::vector<Place> const& Places() {
    static std::vector<Place> const places{
        {"DebutSel", [](auto const& v) { return Zone("n", "t", Membre("DebutSel", v)); },
         [](ZoneRecue const& z) -> long long { return z.debutSel; }},
        {"FinSel", [](auto const& v) { return Zone("n", "t", Membre("FinSel", v)); },
         [](ZoneRecue const& z) -> long long { return z.finSel; }},
        {"Debut",
         [](auto const& v) {
             return Zone("n", "t", R"("InfosStyle":[{"Debut":1},{)" + Membre("Debut", v) + "}]");
         },
         [](ZoneRecue const& z) -> long long { return z.styles.at(1).debut; }},
        {"Fin",
         [](auto const& v) {
             return Zone("n", "t", R"("InfosStyle":[{"Debut":1},{)" + Membre("Fin", v) + "}]");
         },
         [](ZoneRecue const& z) -> long long { return z.styles.at(1).fin; }},
        {"Style",
         [](auto const& v) {
             return Zone("n", "t", R"("InfosStyle":[{"Debut":1},{)" + Membre("Style", v) + "}]");
         },
         [](ZoneRecue const& z) -> long long { return z.styles.at(1).style; }},
    };
    return places;
}

TEST(ZoneReaderIntegers, OneThatIsNoneRaisesTheJsonErrorAndTheZonesBeforeItStay) {
    for (auto const& place : Places()) {
        for (auto const* valeur :
             {R"("5")", R"("")", "[]", "[3]", "{}", R"({"a":1})", "2147483648", "-2147483649",
              "4294967296", "18446744073709551615", "99999999999999999999", "1e10", "-1e10"}) {
            auto const lecture = LisTout(Liste(Zone("a", "1") + ',' + Zone("b", "2") + ',' +
                                               place.zone(valeur) + ',' + Zone("c", "3")));
            EXPECT_EQ("Type is not convertible to int", lecture.erreur)
                << place.nom << ' ' << valeur;
            ASSERT_EQ(2U, lecture.zones.size()) << place.nom << ' ' << valeur;
            EXPECT_EQ(U(u"b"), lecture.zones[1].nom);
        }
    }
}

struct Entier {
    char const* ecrit;
    int lu;
};

TEST(ZoneReaderIntegers, WhatJsonCppTurnsIntoAnIntegerIsTaken) {
    Entier const entiers[] = {
        {"0", 0},
        {"-0", 0},
        {"12", 12},
        {"-12", -12},
        {"1.5", 1},
        {"-1.5", -1},
        {"1e3", 1000},
        {"true", 1},
        {"false", 0},
        {"null", 0},
        {"2147483647", INT_MAX},
        {"-2147483648", INT_MIN},
        {"2147483647.0", INT_MAX},
    };
    for (auto const& place : Places()) {
        for (auto const& entier : entiers) {
            auto const lecture = LisTout(Liste(place.zone(entier.ecrit)));
            EXPECT_EQ("", lecture.erreur) << place.nom << ' ' << entier.ecrit;
            ASSERT_EQ(1U, lecture.zones.size()) << place.nom << ' ' << entier.ecrit;
            long long const attendu =
                place.nom == std::string("Style") ? entier.lu & 0xFFFF : entier.lu;
            EXPECT_EQ(attendu, place.lue(lecture.zones[0])) << place.nom << ' ' << entier.ecrit;
        }
    }
}

TEST(ZoneReaderIntegers, AZoneIsHandedOutOnlyOnceItsRunsAreRead) {
    auto const lecture =
        LisTout(Liste(Zone("a", "1") + ',' + Zone("b", "2", R"("InfosStyle":[{},{},{"Fin":[]}])")));
    EXPECT_EQ(1U, lecture.zones.size());
    EXPECT_EQ("Type is not convertible to int", lecture.erreur);
}

} // namespace
