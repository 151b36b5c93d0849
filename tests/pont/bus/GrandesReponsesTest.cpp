// SPDX-License-Identifier: MPL-2.0
// Replies up to what one message of the bus can carry (128 MiB), and past it.
#include "AgentDeTest.h"
#include "outils/bus/BureauDeTest.h"
#include "outils/bus/BusPrive.h"

#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <string>
#include <vector>

namespace {

constexpr int kMio = 1024 * 1024;

std::unique_ptr<BureauDeTest> Bureau() {
    return std::make_unique<BureauDeTest>(
        std::initializer_list<BureauDeTest::Fichier>{{"lettre.txt", "Les chat dort.\n"}},
        std::vector<std::string>{"--instance", "grande"});
}

class BridgeLargeReplies : public testing::TestWithParam<int> {};

} // namespace

TEST_P(BridgeLargeReplies, AreReadWholeAndLeaveTheConnectionUsable) {
    BusPrive const bus;
    auto const bureau = Bureau();
    AgentDeTest agent(bureau->Identifiant());
    ASSERT_TRUE(agent.Initialise());
    auto const octets = GetParam() * kMio;
    bureau->DonneCommande().Deregle("SynchronisePositions", "taille", std::to_string(octets), 1);
    {
        CollectionZonesDeTexte zones;
        ASSERT_TRUE(agent.SynchronisePositions(zones));
        ASSERT_EQ(zones.DonneNombre(), 1);
        // The text is all of the document but its members' names, three letters for four bytes.
        auto const longueur = zones.DonneZone(0)->DonneLongueur();
        EXPECT_GT(longueur, (octets - 100) / 4 * 3);
        EXPECT_LT(longueur, octets / 4 * 3);
        EXPECT_EQ(longueur % 3, 0);
    }
    CollectionZonesDeTexte zones;
    ASSERT_TRUE(agent.SynchronisePositions(zones));
    EXPECT_EQ(S(sdd::T(zones.DonneZone(0)->DonneTexte().DonneTexte())), "Les chat dort.");
}

INSTANTIATE_TEST_SUITE_P(Mebibytes, BridgeLargeReplies, testing::Values(62, 64, 127),
                         testing::PrintToStringParamName());

TEST(BridgeRepliesPastTheBusLimit, ReadNeutralInBoundedTimeAndTheNextCompanionServes) {
    BusPrive const bus;
    auto bureau = Bureau();
    AgentDeTest agent(bureau->Identifiant());
    ASSERT_TRUE(agent.Initialise());
    // Some bytes more than a message can have: the companion's own library cannot let it leave.
    bureau->DonneCommande().Deregle("SynchronisePositions", "taille", std::to_string(128 * kMio));
    agent.DonneProxy()->setTimeout(3000);
    auto const depart = std::chrono::steady_clock::now();
    CollectionZonesDeTexte zones;
    EXPECT_FALSE(agent.SynchronisePositions(zones));
    EXPECT_EQ(zones.DonneNombre(), 0);
    EXPECT_LT(std::chrono::steady_clock::now() - depart, std::chrono::seconds(30));
    agent.DonneProxy()->setTimeout(-1);
    bureau->Tue();
    bureau.reset();
    bureau = Bureau();
    EXPECT_TRUE(agent.Initialise());
    EXPECT_TRUE(agent.SynchronisePositions(zones));
    EXPECT_EQ(zones.DonneNombre(), 1);
}
