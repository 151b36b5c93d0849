// SPDX-License-Identifier: MPL-2.0
// A bus that goes away, and another that comes in its place, in the middle of the host's work.
#include "AgentDeTest.h"
#include "ConnexionSession.h"
#include "outils/bus/BureauDeTest.h"
#include "outils/bus/BusPrive.h"

#include <gtest/gtest.h>

#include <chrono>
#include <memory>

namespace {

using std::chrono::milliseconds;

class BridgeAndABusThatComesBack : public testing::Test {
  protected:
    void Ouvre() {
        bureau_.reset();
        bureau_ = std::make_unique<BureauDeTest>(
            std::initializer_list<BureauTexte::Fichier>{{"lettre.txt", "Les chat dort.\n"}},
            std::vector<std::string>{"--instance", "essai"});
    }
    /// Bus and office are gone at once.
    void Perds() {
        bus_.Tue();
        bureau_->Tue();
    }
    void Reviens() {
        bus_.Recommence();
        Ouvre();
    }

    BusPrive bus_;
    std::unique_ptr<BureauDeTest> bureau_;
};

TEST_F(BridgeAndABusThatComesBack, AnAgentFromBeforeServesItsDocumentAgainEachTime) {
    Ouvre();
    AgentDeTest agent("essai~doc1");
    ASSERT_TRUE(agent.Initialise());
    agent.DonneProxy()->setTimeout(12345);
    for (int fois = 0; fois < 3; ++fois) {
        Perds();
        EXPECT_EQ(S(agent.DonneTitreDocument()), "") << fois;
        EXPECT_EQ(agent.RemplaceEtReselectionne(Uc("mot")), 0) << fois;
        Reviens();
        EXPECT_EQ(S(agent.DonneTitreDocument()), "lettre.txt") << fois;
        EXPECT_EQ(agent.DonneProxy()->timeout(), 12345);
    }
}

TEST_F(BridgeAndABusThatComesBack, ZonesFromBeforeSendNothingAndThoseReadAnewAreCorrected) {
    Ouvre();
    AgentDeTest agent("essai~doc1");
    ASSERT_TRUE(agent.Initialise());
    CollectionZonesDeTexte avant;
    ASSERT_TRUE(agent.SynchronisePositions(avant));
    Perds();
    Reviens();
    CollectionZonesDeTexte apres;
    ASSERT_TRUE(agent.SynchronisePositions(apres));
    ASSERT_EQ(apres.DonneNombre(), 1);
    EXPECT_FALSE(avant.DonneZone(0)->PeutCorriger(4, 8, Uc("chat")));
    EXPECT_FALSE(avant.DonneZone(0)->CorrigeDansTexteur(4, 8, Uc("chien"), false));
    EXPECT_FALSE(avant.DonneZone(0)->SelectionneIntervalle(4, 8));
    EXPECT_TRUE(apres.DonneZone(0)->PeutCorriger(4, 8, Uc("chat")));
    EXPECT_TRUE(apres.DonneZone(0)->CorrigeDansTexteur(4, 8, Uc("chats"), false));
    CollectionZonesDeTexte corrigees;
    ASSERT_TRUE(agent.SynchronisePositions(corrigees));
    EXPECT_EQ(corrigees.DonneZone(0)->DonneLongueur(), 15);
}

TEST_F(BridgeAndABusThatComesBack, AnAgentMadeAfterwardsFindsItAndOneMadeMeanwhileToo) {
    Ouvre();
    {
        AgentDeTest premier("essai~doc1");
        ASSERT_TRUE(premier.Initialise());
    }
    Perds();
    AgentDeTest entretemps("essai~doc1");
    EXPECT_FALSE(entretemps.Initialise());
    Reviens();
    AgentDeTest apres("essai~doc1");
    EXPECT_TRUE(apres.Initialise());
    EXPECT_TRUE(entretemps.Initialise());
    EXPECT_EQ(S(entretemps.DonneTitreDocument()), "lettre.txt");
}

TEST_F(BridgeAndABusThatComesBack, AProcessThatBeganWithoutABusFindsTheOneThatCame) {
    bus_.Tue();
    AgentDeTest agent("essai~doc1");
    EXPECT_FALSE(agent.Initialise());
    bus_.Recommence();
    Ouvre();
    EXPECT_TRUE(agent.Initialise());
}

TEST_F(BridgeAndABusThatComesBack, AStoppedBusHoldsNobodyWhoConnects) {
    bus_.Fige();
    auto const depart = std::chrono::steady_clock::now();
    EXPECT_FALSE(connexionSession::Ouvre(milliseconds(200)).isConnected());
    EXPECT_LT(std::chrono::steady_clock::now() - depart, milliseconds(15000));
    bus_.Degele();
    EXPECT_TRUE(connexionSession::Ouvre(milliseconds(30000)).isConnected());
}

TEST_F(BridgeAndABusThatComesBack, AStoppedBusHoldsNobodyWhoIsConnectedAlready) {
    ASSERT_TRUE(connexionSession::Ouvre(milliseconds(30000)).isConnected());
    bus_.Fige();
    auto const depart = std::chrono::steady_clock::now();
    EXPECT_FALSE(connexionSession::Ouvre(milliseconds(200)).isConnected());
    EXPECT_LT(std::chrono::steady_clock::now() - depart, milliseconds(15000));
    bus_.Degele();
    EXPECT_TRUE(connexionSession::Ouvre(milliseconds(30000)).isConnected());
}

} // namespace
