// SPDX-License-Identifier: MPL-2.0
// Whatever goes wrong with a waited call reads as the neutral value.
#include "AgentDeTest.h"
#include "outils/bus/BureauDeTest.h"
#include "outils/bus/BusPrive.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <thread>

namespace {

/// Every waited call but first contact.
void AttendsNeutre(AgentDeTest& agent) {
    EXPECT_EQ(S(agent.DonneCheminDocument()), "");
    EXPECT_EQ(S(agent.DonneTitreDocument()), "");
    EXPECT_EQ(S(agent.DonneContexteSelection()), "");
    EXPECT_EQ(agent.DonneDebutSelectionDansSonContexte(), 0);
    EXPECT_EQ(agent.DonneFinSelectionDansSonContexte(), 0);
    EXPECT_FALSE(agent.PermetsRetourDeCharriot());
    EXPECT_FALSE(agent.DocEstMort());
    CollectionZonesDeTexte zones;
    agent.SynchronisePositions(zones);
    EXPECT_EQ(zones.DonneNombre(), 0);
}

/// Fails where what happened since took as long as a call that nobody answers.
class Montre {
  public:
    ~Montre() { EXPECT_LT(std::chrono::steady_clock::now() - depart_, std::chrono::seconds(15)); }
    Montre() = default;
    Montre(Montre const&) = delete;
    Montre& operator=(Montre const&) = delete;

  private:
    std::chrono::steady_clock::time_point depart_ = std::chrono::steady_clock::now();
};

class BridgeNeutralValues : public testing::Test {
  protected:
    BusPrive bus;
    BureauDeTest bureau{{"lettre.txt", "Les chat dort.\n"}};
    AgentDeTest agent{bureau.Identifiant()};
};

} // namespace

TEST_F(BridgeNeutralValues, AnErrorsTextIsNeverTakenForAnAnswer) {
    CollectionZonesDeTexte zones;
    ASSERT_TRUE(agent.Initialise());
    ASSERT_TRUE(agent.SynchronisePositions(zones));
    ASSERT_EQ(zones.DonneNombre(), 1);
    for (char const* const texte : {"true", "7", "text", "{\"Zones\":[{}]}"}) {
        bureau.DonneCommande().Deregle("*", "erreur", texte);
        AttendsNeutre(agent);
        EXPECT_FALSE(agent.Initialise());
        EXPECT_FALSE(zones.DonneZone(0)->PeutCorriger(4, 8, Uc("chat")));
    }
}

TEST_F(BridgeNeutralValues, AReplyWithoutArgumentIsNoAnswer) {
    bureau.DonneCommande().Deregle("*", "sans-argument");
    AttendsNeutre(agent);
}

TEST_F(BridgeNeutralValues, AReplyOfAnotherTypeIsNoAnswer) {
    bureau.DonneCommande().Deregle("*", "texte", "true");
    EXPECT_FALSE(agent.PermetsRetourDeCharriot());
    EXPECT_FALSE(agent.DocEstMort());
    EXPECT_EQ(agent.DonneDebutSelectionDansSonContexte(), 0);
    bureau.DonneCommande().Deregle("*", "entier", "7");
    EXPECT_FALSE(agent.PermetsRetourDeCharriot());
    EXPECT_FALSE(agent.DocEstMort());
    EXPECT_EQ(S(agent.DonneTitreDocument()), "");
    bureau.DonneCommande().Deregle("*", "booleen", "true");
    EXPECT_EQ(agent.DonneFinSelectionDansSonContexte(), 0);
    EXPECT_EQ(S(agent.DonneTitreDocument()), "");
}

TEST_F(BridgeNeutralValues, AReplyInsideAContainerIsNoAnswer) {
    CollectionZonesDeTexte zones;
    ASSERT_TRUE(agent.Initialise());
    ASSERT_TRUE(agent.SynchronisePositions(zones));
    for (char const* const texte : {"true", "7", "{\"Zones\":[{}]}"}) {
        bureau.DonneCommande().Deregle("*", "variante", texte);
        AttendsNeutre(agent);
        EXPECT_FALSE(zones.DonneZone(0)->PeutCorriger(4, 8, Uc("chat"))) << texte;
    }
    bureau.DonneCommande().Deregle("*", "tableau", "1");
    AttendsNeutre(agent);
    EXPECT_FALSE(zones.DonneZone(0)->PeutCorriger(4, 8, Uc("chat")));
}

TEST_F(BridgeNeutralValues, ACompanionThatDiesDuringTheCallIsNoAnswer) {
    bureau.DonneCommande().Deregle("DonneTitreDocument", "meurs");
    EXPECT_EQ(S(agent.DonneTitreDocument()), "");
    bureau.DonneProcessus().Attends();
    AttendsNeutre(agent);
    EXPECT_FALSE(agent.Initialise());
}

TEST_F(BridgeNeutralValues, ANameThatNobodyOwnsIsRefusedAtOnce) {
    Montre const montre;
    AgentDeTest personne("personne~doc1");
    AttendsNeutre(personne);
    EXPECT_FALSE(personne.Initialise());
}

TEST_F(BridgeNeutralValues, NamesThatNoBusCanHaveAreRefusedAtOnce) {
    Montre const montre;
    for (std::string const identifiant : {"7~doc3", "~doc1", "", "a b~c", "a.b~c", "\u00E9~c"}) {
        AgentDeTest impossible(identifiant);
        AttendsNeutre(impossible);
        EXPECT_FALSE(impossible.Initialise()) << identifiant;
        EXPECT_TRUE(impossible.EstLie());
    }
}

TEST_F(BridgeNeutralValues, WithoutAProxyTheDocumentIsDeadAndNothingIsSent) {
    ASSERT_TRUE(agent.Initialise());
    bureau.DonneCommande().VideJournal();
    agent.LibereProxy();
    EXPECT_FALSE(agent.EstLie());
    EXPECT_TRUE(agent.DocEstMort());
    EXPECT_FALSE(agent.Initialise());
    EXPECT_FALSE(agent.PermetsRetourDeCharriot());
    agent.InitialisePour(0);
    agent.ActivePour(1);
    agent.Suspends();
    agent.RompsLienCorrecteur();
    agent.RompsLienTexteur();
    int debut = 5;
    int fin = 9;
    EXPECT_EQ(S(agent.DonneContexte(&debut, &fin)), "");
    EXPECT_EQ(debut, 5);
    EXPECT_EQ(fin, 9);
    EXPECT_EQ(bureau.DonneCommande().DonneMethodes(), "");
}

TEST_F(BridgeNeutralValues, ABusThatDiesDuringAWaitEndsIt) {
    bureau.DonneCommande().Deregle("InitialiseTexteur", "muet");
    auto& commande = bureau.DonneCommande();
    // Past the default of 25 s only the end of the bus can end this wait of four minutes.
    Montre const montre;
    std::thread tueur([&] {
        commande.AttendsAppels("InitialiseTexteur", 1);
        bus.Tue();
    });
    EXPECT_FALSE(agent.Initialise());
    tueur.join();
    AttendsNeutre(agent);
    bureau.Tue();
}

TEST(BridgeWithoutABus, EverythingIsNeutralAndQuick) {
    Montre const montre;
    for (char const* const adresse : {"", "unix:path=/nonexistent/bus"}) {
        ::setenv("DBUS_SESSION_BUS_ADDRESS", adresse, 1);
        AgentDeTest agent("instance~doc1");
        AttendsNeutre(agent);
        EXPECT_FALSE(agent.Initialise());
        agent.ActivePour(0);
    }
}
