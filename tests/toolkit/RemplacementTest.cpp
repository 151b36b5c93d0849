// SPDX-License-Identifier: MPL-2.0
// How zones move when the host replaces text in one of them.
#include "ConnecteurEssai.h"
#include "ImplZoneDeTexteTEMP.h"

#include <gtest/gtest.h>

#include <climits>
#include <vector>

namespace {

using Places = std::vector<ConnecteurEssai::Intervalle>;

class ZonesAfterAReplacement : public testing::Test {
  protected:
    ZonesAfterAReplacement() {
        connecteur_.Bornes() = {10, 20, 30};
        connecteur_.SynchronisePositions(zones_);
    }

    Places Remplace(int debut, int fin, int finZone, int longueur) {
        connecteur_.RemplaceDansZones(debut, fin, finZone, Bourre(longueur), false);
        return DonnePlaces();
    }

    Places DonnePlaces() const {
        Places places;
        for (int i = 0; i < zones_.DonneNombre(); ++i) {
            auto const& zone = dynamic_cast<ImplZoneDeTexteTEMP const&>(*zones_.DonneZone(i));
            places.emplace_back(zone.DonneDebut(), zone.DonneFin());
        }
        return places;
    }

    ConnecteurEssai connecteur_{u"0123456789abcdefghijABCDEFGHIJ"};
    CollectionZonesDeTexte zones_;
};

TEST_F(ZonesAfterAReplacement, LongerTextPushesItsZonesEndAndTheZonesBehind) {
    EXPECT_EQ((Places{{0, 10}, {10, 23}, {23, 33}}), Remplace(12, 14, 20, 5));
}

TEST_F(ZonesAfterAReplacement, ShorterTextPullsThem) {
    EXPECT_EQ((Places{{0, 10}, {10, 18}, {18, 28}}), Remplace(12, 14, 20, 0));
}

TEST_F(ZonesAfterAReplacement, TextOfTheSameLengthMovesNothing) {
    EXPECT_EQ((Places{{0, 10}, {10, 20}, {20, 30}}), Remplace(12, 14, 20, 2));
}

TEST_F(ZonesAfterAReplacement, AnInsertionAtTheZonesStartKeepsTheStart) {
    // The zone before ends where the insertion does and grows, too: its end is not behind it.
    EXPECT_EQ((Places{{0, 13}, {10, 23}, {23, 33}}), Remplace(10, 10, 20, 3));
}

TEST_F(ZonesAfterAReplacement, AReplacementUpToTheZonesEndMovesTheNextZonesStart) {
    EXPECT_EQ((Places{{0, 10}, {10, 24}, {24, 34}}), Remplace(16, 20, 20, 8));
}

TEST_F(ZonesAfterAReplacement, AtTheEndOfTheLastZoneOnlyThatZoneGrows) {
    EXPECT_EQ((Places{{0, 10}, {10, 20}, {20, 34}}), Remplace(30, 30, 30, 4));
}

TEST_F(ZonesAfterAReplacement, OneThatEndsBehindAZonesEndLeavesThatZone) {
    EXPECT_EQ((Places{{0, 10}, {10, 20}, {20, 29}}), Remplace(15, 22, 20, 6));
}

TEST_F(ZonesAfterAReplacement, InvertedAndExtremeIntervalsDoNotOverflow) {
    Remplace(INT_MAX, INT_MIN, INT_MIN, 1);
    Remplace(INT_MIN, INT_MAX, INT_MAX, 0);
    EXPECT_EQ(3, zones_.DonneNombre());
}

TEST_F(ZonesAfterAReplacement, FollowsTheSameWayWhenItIsAskedThroughTheZone) {
    zones_.DonneZone(1)->CorrigeDansTexteur(2, 4, Bourre(5), true);
    EXPECT_EQ((Places{{0, 10}, {10, 23}, {23, 33}}), DonnePlaces());
    EXPECT_EQ(10, zones_.DonneZone(1)->DonneLongueur())
        << "the text that was read stays until the next synchronisation";
}

TEST_F(ZonesAfterAReplacement, OneThatTheConnectorFailsAtMovesNothing) {
    class Defaillant : public ConnecteurEssai {
      public:
        Defaillant()
            : InterfaceTexteur(UniChaine())
            , ConnecteurEssai(u"abc") {}
        void RemplaceDansTexteur(int, int, int, UniChaine const&, bool) override { Echoue(); }
    };
    Defaillant connecteur;
    CollectionZonesDeTexte zones;
    connecteur.SynchronisePositions(zones);
    EXPECT_ANY_THROW(connecteur.RemplaceDansZones(0, 1, 3, U(u"xyz"), false));
    EXPECT_EQ(3, dynamic_cast<ImplZoneDeTexteTEMP&>(*zones.DonneZone(0)).DonneFin());
}

} // namespace
