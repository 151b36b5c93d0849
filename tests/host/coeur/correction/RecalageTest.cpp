// SPDX-License-Identifier: MPL-2.0
#include "correction/Recalage.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <random>

using hote::Recalage;

namespace {

using Zones = std::vector<QString>;

Zones Lis(char const* lettres) {
    Zones zones;
    for (; *lettres != '\0'; ++lettres) {
        zones.emplace_back(QLatin1Char(*lettres));
    }
    return zones;
}

/// The new ranks of all old zones, "-" for one that is lost.
std::string Places(Zones const& anciens, Zones const& nouveaux) {
    Recalage const recalage(anciens, nouveaux);
    QStringList places;
    for (int rang = 0; rang < static_cast<int>(anciens.size()); ++rang) {
        auto const place = recalage.Retrouve(rang);
        places.append(place ? QString::number(*place) : QStringLiteral("-"));
    }
    return places.join(QLatin1Char(' ')).toStdString();
}

std::string Places(char const* anciens, char const* nouveaux) {
    return Places(Lis(anciens), Lis(nouveaux));
}

} // namespace

TEST(Recalage, ZonesThatDidNotChangeKeepTheirRanks) {
    EXPECT_EQ(Places("abc", "abc"), "0 1 2");
    EXPECT_TRUE(Recalage(Lis("abc"), Lis("abc")).EstInchange());
    EXPECT_TRUE(Recalage({}, {}).EstInchange());
    EXPECT_FALSE(Recalage(Lis("abc"), Lis("abcd")).EstInchange());
    EXPECT_FALSE(Recalage(Lis("abc"), Lis("abx")).EstInchange());
}

TEST(Recalage, ZonesBehindNewOnesAndLostOnesMove) {
    EXPECT_EQ(Places("abc", "abxyc"), "0 1 4");
    EXPECT_EQ(Places("abcd", "acd"), "0 - 1 2");
    EXPECT_EQ(Places("abc", "xabcx"), "1 2 3");
    EXPECT_EQ(Places("abc", ""), "- - -");
}

TEST(Recalage, AChangedZoneBetweenTwoKnownOnesIsFound) {
    EXPECT_EQ(Places("abc", "aXc"), "0 1 2");
    EXPECT_EQ(Places("abcde", "xaBcdyE"), "1 2 3 4 -");
}

TEST(Recalage, ZonesAlikeAreNotTakenForEachOther) {
    EXPECT_EQ(Places("xeey", "peeeq"), "- - - -");
    EXPECT_EQ(Places("eeee", "eee"), "0 1 2 -");
}

TEST(Recalage, EveryPlaceIsOneOfTheNewZones) {
    std::mt19937 hasard(4);
    for (int essai = 0; essai < 20000; ++essai) {
        auto const tire = [&] {
            Zones zones(hasard() % 8);
            for (QString& zone : zones) {
                zone = QLatin1Char(static_cast<char>('a' + hasard() % 4));
            }
            return zones;
        };
        Zones const anciens = tire();
        Zones const nouveaux = tire();
        Recalage const recalage(anciens, nouveaux);
        EXPECT_EQ(recalage.EstInchange(), anciens == nouveaux);
        for (int rang = 0; rang < static_cast<int>(anciens.size()); ++rang) {
            auto const place = recalage.Retrouve(rang);
            ASSERT_TRUE(!place || (*place >= 0 && *place < static_cast<int>(nouveaux.size())));
        }
    }
}
