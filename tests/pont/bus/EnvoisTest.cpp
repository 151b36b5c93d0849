// SPDX-License-Identifier: MPL-2.0
// What a call that nobody waits for answers: whether it was sent, whatever comes back.
#include "AgentDeTest.h"
#include "EnvoisEnCours.h"
#include "ReponseProxy.h"
#include "ZoneDeTexteOOoProxy.h"
#include "outils/bus/BureauDeTest.h"
#include "outils/bus/BusPrive.h"

#include <gtest/gtest.h>

#include <string>

namespace {

class BridgeSends : public testing::Test {
  protected:
    /// A zone that takes a while to replace in its own copy: an answer is in by then.
    ZoneDeTexteOOoProxy Grande() {
        return {agent.DonneProxy(), &agent, Uc(std::string(4 << 20, 'x')), Uc("z"), 0, 0};
    }

    BusPrive bus;
    BureauDeTest bureau{{"lettre.txt", "Les chat dort.\n"}};
    AgentDeTest agent{bureau.Identifiant()};
};

} // namespace

TEST_F(BridgeSends, AnErrorThatCameBackAlreadyIsNoFailureToSend) {
    bureau.DonneCommande().Deregle("SelectionneIntervalle", "erreur", "no");
    auto appel = agent.DonneProxy()->SelectionneIntervalle(QStringLiteral("z"), 0, 1);
    appel.waitForFinished();
    ASSERT_TRUE(appel.isError());
    EXPECT_TRUE(reponseProxy::EstPartie(appel));
}

TEST_F(BridgeSends, ACallThatNobodyAnsweredInTimeWasSentToo) {
    bureau.DonneCommande().Deregle("SelectionneIntervalle", "muet");
    agent.DonneProxy()->setTimeout(50);
    auto appel = agent.DonneProxy()->SelectionneIntervalle(QStringLiteral("z"), 0, 1);
    appel.waitForFinished();
    ASSERT_TRUE(appel.isError());
    EXPECT_TRUE(reponseProxy::EstPartie(appel));
}

TEST_F(BridgeSends, EveryCorrectionOfALargeZoneCountsThatTheCompanionRefuses) {
    constexpr int kNombre = 40;
    bureau.DonneCommande().Deregle("*", "erreur", "no");
    auto zone = Grande();
    for (int i = 0; i < kNombre; ++i) {
        EXPECT_TRUE(zone.CorrigeDansTexteur(0, 1, Uc("yy"), false)) << i;
    }
    bureau.DonneCommande().AttendsAppels("CorrigeDansTexteur", kNombre);
}

TEST_F(BridgeSends, WhatTheBusAnswersForACompanionThatIsGoneIsNoFailureToSend) {
    AgentDeTest personne("personne~doc1");
    ZoneDeTexteOOoProxy zone(personne.DonneProxy(), &personne, Uc(std::string(4 << 20, 'x')),
                             Uc("z"), 0, 0);
    for (int i = 0; i < 20; ++i) {
        EXPECT_TRUE(zone.CorrigeDansTexteur(0, 1, Uc("yy"), false)) << i;
        EXPECT_TRUE(zone.SelectionneIntervalle(0, 1)) << i;
        EXPECT_EQ(personne.RemplaceEtReselectionne(Uc("mot")), 3) << i;
    }
}

TEST_F(BridgeSends, ToACompanionThatAnswersNothingNoMoreLeavesThanItMayBeBehindWith) {
    bureau.DonneCommande().Deregle("*", "muet");
    auto zone = Grande();
    for (int i = 0; i < envoisEnCours::kMax; ++i) {
        ASSERT_TRUE(zone.SelectionneIntervalle(0, 1)) << i;
    }
    for (int i = 0; i < 20000; ++i) {
        ASSERT_FALSE(zone.SelectionneIntervalle(0, 1)) << i;
    }
    EXPECT_EQ(agent.RemplaceEtReselectionne(Uc("mot")), 0);
    AgentDeTest autre(bureau.Identifiant());
    EXPECT_EQ(autre.RemplaceEtReselectionne(Uc("mot")), 3) << "another agent has its own";
}

TEST_F(BridgeSends, WhoIsOnlySlowGetsThemAll) {
    constexpr int kNombre = 3 * envoisEnCours::kMax;
    ASSERT_TRUE(agent.Initialise());
    auto zone = Grande();
    for (int i = 0; i < kNombre; ++i) {
        ASSERT_TRUE(zone.SelectionneIntervalle(0, 1)) << i;
    }
    bureau.DonneCommande().AttendsAppels("SelectionneIntervalle", kNombre);
}

TEST_F(BridgeSends, NothingLeavesUnderNamesThatNoBusCanHaveOrOverABusThatIsGone) {
    AgentDeTest impossible("7~doc1");
    ZoneDeTexteOOoProxy zone(impossible.DonneProxy(), &impossible, Uc("x"), Uc("z"), 0, 0);
    EXPECT_FALSE(zone.CorrigeDansTexteur(0, 1, Uc("y"), false));
    EXPECT_FALSE(zone.SelectionneIntervalle(0, 1));
    EXPECT_EQ(impossible.RemplaceEtReselectionne(Uc("mot")), 0);

    ASSERT_TRUE(agent.Initialise());
    bus.Tue();
    EXPECT_FALSE(agent.Initialise()) << "by then the connection knows";
    auto grande = Grande();
    EXPECT_FALSE(grande.CorrigeDansTexteur(0, 1, Uc("y"), false));
    EXPECT_FALSE(grande.SelectionneIntervalle(0, 1));
    EXPECT_EQ(agent.RemplaceEtReselectionne(Uc("mot")), 0);
    bureau.Tue();
}
