// SPDX-License-Identifier: MPL-2.0
#include "ConnecteurEssai.h"

#include <gtest/gtest.h>

#include <climits>
#include <functional>
#include <string>
#include <vector>

namespace {

using Selections = std::vector<ConnecteurEssai::Intervalle>;
using Textes = std::vector<UniChaine>;

TEST(GenericSynchronisation, ADocumentOfLengthZeroYieldsNoZone) {
    ConnecteurEssai connecteur;
    CollectionZonesDeTexte zones;
    EXPECT_TRUE(connecteur.SynchronisePositions(zones));
    EXPECT_TRUE(zones.EstVide());
    connecteur.longueur = [] { return -5; };
    EXPECT_TRUE(connecteur.SynchronisePositions(zones));
    EXPECT_TRUE(zones.EstVide());
}

TEST(GenericSynchronisation, AnEmptyBoundariesListYieldsOneZoneOverTheWholeText) {
    ConnecteurEssai connecteur(u"un texte");
    CollectionZonesDeTexte zones;
    EXPECT_TRUE(connecteur.SynchronisePositions(zones));
    EXPECT_EQ(Textes{U(u"un texte")}, TextesDe(zones));
}

TEST(GenericSynchronisation, BoundariesCutTheTextIntoZones) {
    ConnecteurEssai connecteur(u"abcdefghij");
    connecteur.Bornes() = {2, 3, 10};
    CollectionZonesDeTexte zones;
    EXPECT_TRUE(connecteur.SynchronisePositions(zones));
    EXPECT_EQ((Textes{U(u"ab"), U(u"c"), U(u"defghij")}), TextesDe(zones));
    EXPECT_EQ(7, zones.DonneZone(2)->DonneLongueur());
}

TEST(GenericSynchronisation, BoundariesBeyondTheLengthAreClippedToIt) {
    ConnecteurEssai connecteur(u"abcd");
    connecteur.Bornes() = {2, 1000};
    CollectionZonesDeTexte zones;
    EXPECT_TRUE(connecteur.SynchronisePositions(zones));
    EXPECT_EQ((Textes{U(u"ab"), U(u"cd")}), TextesDe(zones));
}

TEST(GenericSynchronisation, AZoneEndThatDoesNotAdvanceEndsTheZoneAtTheLength) {
    for (int const fin : {2, 1, 0, -1, INT_MIN}) {
        ConnecteurEssai connecteur(u"abcd");
        connecteur.finZone = [fin](int position) { return position < 2 ? 2 : fin; };
        CollectionZonesDeTexte zones;
        EXPECT_TRUE(connecteur.SynchronisePositions(zones));
        EXPECT_EQ((Textes{U(u"ab"), U(u"cd")}), TextesDe(zones)) << fin;
    }
}

TEST(GenericSynchronisation, ABoundaryAtTheCurrentPositionEndsTheZoneAtTheLength) {
    ConnecteurEssai connecteur(u"abcd");
    connecteur.Bornes() = {2, 2}; // from 2 on, the last boundary is the position itself
    CollectionZonesDeTexte zones;
    EXPECT_TRUE(connecteur.SynchronisePositions(zones));
    EXPECT_EQ((Textes{U(u"ab"), U(u"cd")}), TextesDe(zones));
}

TEST(GenericSynchronisation, AZoneEndThatThrowsEndsTheZoneAtTheLength) {
    ConnecteurEssai connecteur(u"abcd");
    connecteur.finZone = [](int position) -> int {
        if (position >= 1) {
            Echoue();
        }
        return 1;
    };
    CollectionZonesDeTexte zones;
    EXPECT_TRUE(connecteur.SynchronisePositions(zones));
    EXPECT_EQ((Textes{U(u"a"), U(u"bcd")}), TextesDe(zones));
}

struct Selection {
    int debut;
    int fin;
    Selections attendues;
};

TEST(GenericSynchronisation, TheSelectionGoesToTheZoneThatHoldsIt) {
    // Zones [0,4) and [4,8) of a text of 8.
    Selection const cas[] = {
        {0, 0, {{0, 0}, {0, 0}}},
        {1, 3, {{1, 3}, {0, 0}}},
        {1, 4, {{1, 4}, {0, 0}}},
        {4, 4, {{0, 0}, {0, 0}}},
        {5, 8, {{0, 0}, {1, 4}}},
        {7, 7, {{0, 0}, {3, 3}}},
        {8, 8, {{0, 0}, {0, 0}}},     // at the end of the text no zone holds its start
        {-7, 2, {{0, 2}, {0, 0}}},    // a negative start counts as 0
        {5, 100, {{0, 0}, {1, 4}}},   // an end past the text is cut
        {6, 2, {{0, 0}, {2, 2}}},     // an end before the start counts as the start
        {100, 200, {{0, 0}, {0, 0}}}, // all past the text
        {INT_MIN, INT_MIN, {{0, 0}, {0, 0}}},
        {INT_MAX, INT_MAX, {{0, 0}, {0, 0}}},
    };
    for (auto const& c : cas) {
        ConnecteurEssai connecteur(u"abcdefgh");
        connecteur.Bornes() = {4, 8};
        connecteur.debutSelection = [&c] { return c.debut; };
        connecteur.finSelection = [&c] { return c.fin; };
        CollectionZonesDeTexte zones;
        EXPECT_TRUE(connecteur.SynchronisePositions(zones));
        EXPECT_EQ(c.attendues, SelectionsDe(zones)) << c.debut << ", " << c.fin;
    }
}

TEST(GenericSynchronisation, ASelectionThatCrossesABoundaryIsGivenToNoZone) {
    ConnecteurEssai connecteur(u"abcdefgh");
    connecteur.Bornes() = {4, 8};
    connecteur.debutSelection = [] { return 3; };
    connecteur.finSelection = [] { return 5; };
    CollectionZonesDeTexte zones;
    EXPECT_TRUE(connecteur.SynchronisePositions(zones));
    EXPECT_EQ((Selections{{0, 0}, {0, 0}}), SelectionsDe(zones));
}

TEST(GenericSynchronisation, BoundsAreReadInOrderAfterPreparation) {
    ConnecteurEssai connecteur(u"a");
    CollectionZonesDeTexte zones;
    connecteur.SynchronisePositions(zones);
    EXPECT_EQ((std::vector<std::string>{"PrepareLecture", "DonneLongueurTexte",
                                        "DonneDebutSelectionTexte", "DonneFinSelectionTexte"}),
              connecteur.ordre);
}

TEST(GenericSynchronisation, WhateverFailsWhileTheBoundsAreReadAnswersFalseAndYieldsNoZone) {
    auto const echoue = []() -> int { Echoue(); };
    std::vector<std::function<void(ConnecteurEssai&)>> const cas{
        [](ConnecteurEssai& c) { c.prepare = [] { Echoue(); }; },
        [&](ConnecteurEssai& c) { c.longueur = echoue; },
        [&](ConnecteurEssai& c) { c.debutSelection = echoue; },
        [&](ConnecteurEssai& c) { c.finSelection = echoue; },
        [](ConnecteurEssai& c) { c.prepare = [] { throw 42; }; }, // not even a std::exception
    };
    for (auto const& casse : cas) {
        ConnecteurEssai connecteur(u"abc");
        CollectionZonesDeTexte zones;
        ASSERT_TRUE(connecteur.SynchronisePositions(zones));
        ASSERT_EQ(1, zones.DonneNombre());
        casse(connecteur);
        EXPECT_FALSE(connecteur.SynchronisePositions(zones));
        EXPECT_TRUE(zones.EstVide()) << "the zones of the call before are gone in any case";
    }
}

TEST(GenericSynchronisation, ASecondOneIntoTheSameCollectionReplacesTheAgentsZones) {
    ConnecteurEssai connecteur(u"abcd");
    connecteur.Bornes() = {2, 4};
    CollectionZonesDeTexte zones;
    ASSERT_TRUE(connecteur.SynchronisePositions(zones));
    connecteur.document = A(u"xyz");
    connecteur.Bornes() = {1};
    EXPECT_TRUE(connecteur.SynchronisePositions(zones));
    EXPECT_EQ((Textes{U(u"x"), U(u"yz")}), TextesDe(zones));
}

TEST(GenericSynchronisation, ZonesOfOtherAgentsInTheCollectionStay) {
    ConnecteurEssai un(u"un");
    ConnecteurEssai deux(u"deux");
    CollectionZonesDeTexte zones;
    un.SynchronisePositions(zones);
    deux.SynchronisePositions(zones);
    un.SynchronisePositions(zones);
    EXPECT_EQ((Textes{U(u"deux"), U(u"un")}), TextesDe(zones));
    zones.Vide();
}

TEST(GenericSynchronisation, DonneZonesIsTheSameOperation) {
    ConnecteurEssai connecteur(u"abcd");
    connecteur.Bornes() = {2, 4};
    CollectionZonesDeTexte zones;
    EXPECT_TRUE(connecteur.DonneZones(zones));
    EXPECT_TRUE(connecteur.DonneZones(zones));
    EXPECT_EQ((Textes{U(u"ab"), U(u"cd")}), TextesDe(zones));
    connecteur.prepare = [] { Echoue(); };
    EXPECT_FALSE(connecteur.DonneZones(zones));
}

TEST(GenericSynchronisation, DonneZonesCallsAConnectorsOwnSynchronisation) {
    class Propre : public ConnecteurMuet {
      public:
        Propre()
            : InterfaceTexteur(UniChaine()) {}
        bool SynchronisePositions(CollectionZonesDeTexte& zones) override {
            recue = &zones;
            return false;
        }
        CollectionZonesDeTexte* recue = nullptr;
    };
    Propre connecteur;
    CollectionZonesDeTexte zones;
    EXPECT_FALSE(connecteur.DonneZones(zones));
    EXPECT_EQ(&zones, connecteur.recue);
}

TEST(GenericSynchronisation, ZonesStayTheAgentsAndTheCollectionSaysSo) {
    ConnecteurEssai connecteur(u"abcd");
    CollectionZonesDeTexte zones;
    connecteur.SynchronisePositions(zones);
    ASSERT_EQ(1, zones.DonneNombre());
    EXPECT_FALSE(zones.Possede(0));
    auto* const zone = zones.DonneZone(0);
    zones.Vide();
    EXPECT_EQ(4, zone->DonneLongueur()) << "emptying the collection leaves the agent's zone";
}

TEST(GenericSynchronisation, AHundredThousandZonesAreMadeInOrder) {
    constexpr int kNombre = 100000;
    ConnecteurEssai connecteur;
    connecteur.document = TexteAvecAttributs(sdd::ChaineN(kNombre * 3, u'x'));
    connecteur.finZone = [](int position) { return position + 3; };
    connecteur.debutSelection = [] { return kNombre * 3 - 2; };
    connecteur.finSelection = [] { return kNombre * 3; };
    CollectionZonesDeTexte zones;
    ASSERT_TRUE(connecteur.SynchronisePositions(zones));
    ASSERT_EQ(kNombre, zones.DonneNombre());
    EXPECT_EQ(U(u"xxx"), TexteDe(zones.DonneZone(kNombre / 2)->DonneTexte()));
    EXPECT_EQ(1, zones.DonneZone(kNombre - 1)->DonneDebutSelection());
    EXPECT_EQ(3, zones.DonneZone(kNombre - 1)->DonneFinSelection());
    ASSERT_TRUE(connecteur.SynchronisePositions(zones));
    EXPECT_EQ(kNombre, zones.DonneNombre());
    connecteur.document = {};
    ASSERT_TRUE(connecteur.SynchronisePositions(zones));
    EXPECT_EQ(0, zones.DonneNombre());
}

} // namespace
