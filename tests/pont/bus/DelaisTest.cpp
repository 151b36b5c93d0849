// SPDX-License-Identifier: MPL-2.0
// How long calls wait, and that a special time-out is theirs alone.
#include "AgentDeTest.h"
#include "outils/bus/BureauDeTest.h"
#include "outils/bus/BusPrive.h"

#include <QThread>

#include <gtest/gtest.h>

#include <chrono>
#include <cstdint>
#include <thread>

namespace {

using Horloge = std::chrono::steady_clock;

std::int64_t MillisecondesDepuis(Horloge::time_point depart) {
    return std::chrono::duration_cast<std::chrono::milliseconds>(Horloge::now() - depart).count();
}

class BridgeTimeouts : public testing::Test {
  protected:
    BusPrive bus;
    BureauDeTest bureau{{"lettre.txt", "Les chat dort.\n"}};
    AgentDeTest agent{bureau.Identifiant()};
};

} // namespace

TEST_F(BridgeTimeouts, DocEstMortGivesASilentCompanion1500MillisecondsAndReadsAlive) {
    bureau.DonneCommande().Deregle("DocEstMort", "muet");
    auto const depart = Horloge::now();
    EXPECT_FALSE(agent.DocEstMort());
    // QtDBus keeps the time with a coarse timer, which may fire a twentieth early.
    EXPECT_GE(MillisecondesDepuis(depart), 1400);
    EXPECT_LT(MillisecondesDepuis(depart), 15000);
    EXPECT_EQ(agent.DonneProxy()->timeout(), -1);
}

TEST_F(BridgeTimeouts, AnEarlierTimeoutIsBackAfterASuccessAndAnErrorAndATimeout) {
    agent.DonneProxy()->setTimeout(12345);
    EXPECT_TRUE(agent.Initialise());
    EXPECT_EQ(agent.DonneProxy()->timeout(), 12345);
    bureau.DonneCommande().Deregle("*", "erreur", "true");
    EXPECT_FALSE(agent.Initialise());
    EXPECT_FALSE(agent.DocEstMort());
    EXPECT_EQ(agent.DonneProxy()->timeout(), 12345);
    bureau.DonneCommande().Deregle("*", "muet");
    EXPECT_FALSE(agent.DocEstMort());
    EXPECT_EQ(agent.DonneProxy()->timeout(), 12345);
}

TEST_F(BridgeTimeouts, AWaitedCallEndsAtTheProxysOwnTimeout) {
    bureau.DonneCommande().Deregle("DonneTitreDocument", "muet");
    agent.DonneProxy()->setTimeout(300);
    auto const depart = Horloge::now();
    EXPECT_EQ(S(agent.DonneTitreDocument()), "");
    EXPECT_LT(MillisecondesDepuis(depart), 15000);
    agent.DonneProxy()->setTimeout(-1);
    bureau.DonneCommande().Retablis();
    EXPECT_EQ(S(agent.DonneTitreDocument()), "");
    EXPECT_TRUE(agent.Initialise());
    EXPECT_EQ(S(agent.DonneTitreDocument()), "lettre.txt");
}

TEST_F(BridgeTimeouts, AFrozenBusHoldsDocEstMortNoLongerThanItsTimeout) {
    ASSERT_TRUE(agent.Initialise());
    bus.Fige();
    auto const depart = Horloge::now();
    EXPECT_FALSE(agent.DocEstMort());
    EXPECT_LT(MillisecondesDepuis(depart), 15000);
    bus.Degele();
    EXPECT_EQ(S(agent.DonneTitreDocument()), "lettre.txt");
}

TEST_F(BridgeTimeouts, FirstContactWaits240SecondsAndTheEarlierTimeoutIsBackAfterwards) {
    agent.DonneProxy()->setTimeout(12345);
    bureau.DonneCommande().Deregle("InitialiseTexteur", "muet");
    auto& commande = bureau.DonneCommande();
    int pendant = 0;
    std::thread temoin([&] {
        commande.AttendsAppels("InitialiseTexteur", 1);
        pendant = agent.DonneProxy()->timeout();
        bureau.Tue(); // ends the wait
    });
    EXPECT_FALSE(agent.Initialise());
    temoin.join();
    EXPECT_EQ(pendant, 240000);
    EXPECT_EQ(agent.DonneProxy()->timeout(), 12345);
}

TEST_F(BridgeTimeouts, FirstContactOutlivesTheTimeoutThatEndsTheOtherCalls) {
    agent.DonneProxy()->setTimeout(200);
    bureau.DonneCommande().Deregle("*", "lent", "1000");
    EXPECT_EQ(S(agent.DonneTitreDocument()), "");
    EXPECT_TRUE(agent.Initialise());
    EXPECT_EQ(agent.DonneProxy()->timeout(), 200);
}

TEST_F(BridgeTimeouts, AnExtensionTooOldToKnowFirstContactIsRefusedAtOnce) {
    auto const service = QStringLiteral("com.ombrel.vocalyne.texteurs.OpenOffice.ancienne");
    auto const objet = QStringLiteral("/com/ombrel/vocalyne/texteurs/OpenOffice/ancienne");
    LienBus const lien(service, objet, QString());
    QThread fil; // the calling thread does not serve while it waits
    QObject extension;
    extension.moveToThread(&fil);
    fil.start();
    auto connexion = lien.Connexion();
    ASSERT_TRUE(connexion.registerObject(
        objet, QStringLiteral("com.ombrel.vocalyne.texteurs.openoffice.proxy.interface"),
        &extension, QDBusConnection::ExportAllSlots));
    ASSERT_TRUE(connexion.registerService(service));
    AgentDeTest vieux("ancienne~doc1");
    auto const depart = Horloge::now();
    EXPECT_FALSE(vieux.Initialise());
    EXPECT_LT(MillisecondesDepuis(depart), 15000);
    auto appel = vieux.DonneProxy()->InitialiseTexteur(QStringLiteral("doc1"));
    appel.waitForFinished();
    EXPECT_EQ(appel.error().type(), QDBusError::UnknownMethod);
    fil.quit();
    fil.wait();
}
