// SPDX-License-Identifier: MPL-2.0
#include "outils/bus/BureauDeTest.h"
#include "outils/bus/BusPrive.h"
#include "outils/bus/ClientBureau.h"

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>

namespace {

class OfficeSession : public testing::Test {
  protected:
    explicit OfficeSession(std::vector<std::string> const& options = {})
        : bureau({{"a.txt", "Un chat.\n"}}, options) {}

    /// Asks until it is so; the answer to each question is what time passes with.
    bool Atteint(int appelants) {
        auto const fin =
            std::chrono::steady_clock::now() + std::chrono::milliseconds(Processus::kDelaiMs);
        while (bureau.DonneCommande().DonneNombreAppelants() != appelants) {
            if (std::chrono::steady_clock::now() > fin) {
                return false;
            }
        }
        return true;
    }

    BusPrive bus;
    BureauDeTest bureau;
};

class OfficeThatEndsWithItsHost : public OfficeSession {
  protected:
    OfficeThatEndsWithItsHost()
        : OfficeSession({"--fin-avec-hote"}) {}
};

} // namespace

TEST_F(OfficeSession, SavesAndEndsWhenTheBusGoesAway) {
    ClientBureau const client(bureau.Instance());
    client.Synchronise(bureau.Identifiant());
    EXPECT_EQ(client.Corrige("z1", 3, 7, "chien"), "");
    bus.Tue();
    EXPECT_EQ(bureau.DonneProcessus().Attends(), 3);
    EXPECT_EQ(bureau.Contenu(), "Un chien.\n");
    EXPECT_NE(bureau.DonneProcessus().Erreurs().find("The session bus is gone"), std::string::npos)
        << bureau.DonneProcessus().Erreurs();
}

TEST_F(OfficeThatEndsWithItsHost, SaysThatTheBusIsGoneAllTheSame) {
    ClientBureau const client(bureau.Instance());
    client.Initialise("doc1");
    bus.Tue();
    EXPECT_EQ(bureau.DonneProcessus().Attends(), 3);
}

TEST_F(OfficeThatEndsWithItsHost, EndsAndSavesWhenTheLastOneHasLeft) {
    auto premier = std::make_unique<ClientBureau>(bureau.Instance());
    auto second = std::make_unique<ClientBureau>(bureau.Instance());
    premier->Initialise("doc1");
    second->Synchronise(bureau.Identifiant());
    EXPECT_EQ(second->Corrige("z1", 3, 7, "chien"), "");
    premier.reset();
    EXPECT_TRUE(Atteint(1));
    EXPECT_FALSE(bureau.DonneProcessus().EstFini());
    second.reset();
    EXPECT_EQ(bureau.DonneProcessus().Attends(), 0);
    EXPECT_EQ(bureau.Contenu(), "Un chien.\n");
}

TEST_F(OfficeThatEndsWithItsHost, IsNotEndedByACallerThatNamedNoDocument) {
    {
        ClientBureau const passant(bureau.Instance());
        EXPECT_NE(passant.Erreur("DonneTitreDocument"), "");
        EXPECT_EQ(passant.Erreur("DocEstMort", {QStringLiteral("doc1")}), "");
    }
    ClientBureau const client(bureau.Instance());
    client.Initialise("doc1");
    EXPECT_EQ(client.Texte("DonneTitreDocument"), "a.txt");
    EXPECT_FALSE(bureau.DonneProcessus().EstFini());
    bureau.Finis();
}

TEST_F(OfficeSession, ForgetsCallersThatLeaveTheBus) {
    EXPECT_EQ(bureau.DonneCommande().DonneNombreAppelants(), 0);
    {
        ClientBureau const premier(bureau.Instance());
        ClientBureau const second(bureau.Instance());
        premier.Initialise("doc1");
        second.Synchronise(bureau.Identifiant());
        EXPECT_EQ(bureau.DonneCommande().DonneNombreAppelants(), 2);
    }
    EXPECT_TRUE(Atteint(0));
}

TEST_F(OfficeSession, ForgetsOneThatLeavesBeforeItsCallIsServed) {
    for (int i = 0; i < 50; ++i) {
        ClientBureau passant(bureau.Instance());
        passant.Lien().Envoie(QStringLiteral("InitialiseTexteur"), {QStringLiteral("doc1")});
    }
    bureau.DonneCommande().AttendsAppels("InitialiseTexteur", 50);
    EXPECT_TRUE(Atteint(0));
}

TEST_F(OfficeSession, StaysReachableAfterAMessageLargerThanLibdbusReadsByDefault) {
    ClientBureau const client(bureau.Instance());
    QString const enorme(70 << 20, QLatin1Char('a'));
    EXPECT_EQ(client.Erreur("InitialiseTexteur", {enorme}).substr(0, 20), "com.ombrel.vocalyne.");
    client.Initialise("doc1");
    EXPECT_EQ(client.Erreur("RemplaceEtReselectionne", {enorme}),
              "com.ombrel.vocalyne.texteurs.Erreur.TropGrand");
    EXPECT_EQ(client.Texte("DonneContexteSelection"), "Un chat.");
}

TEST_F(OfficeSession, ServesAThousandCallsInARowOfManyCallers) {
    std::vector<std::unique_ptr<ClientBureau>> clients;
    for (int i = 0; i < 20; ++i) {
        clients.push_back(std::make_unique<ClientBureau>(bureau.Instance()));
        clients.back()->Synchronise(bureau.Identifiant());
    }
    for (int tour = 0; tour < 50; ++tour) {
        for (auto const& client : clients) {
            ASSERT_TRUE(client->PeutCorriger("z1", 3, 7, "chat"));
        }
    }
}

TEST(OfficeFile, AtThirtyTwoMebibytesIsServedWholeAndStaysCallable) {
    BusPrive bus;
    std::string ligne(1023, 'a');
    ligne += '\n';
    std::string texte;
    while (texte.size() < (32U << 20)) {
        texte += ligne;
    }
    BureauDeTest bureau({{"grand.txt", texte}});
    ClientBureau const client(bureau.Instance());
    QDBusMessage const reponse =
        client.Appelle("SynchronisePositions", {QString::fromStdString(bureau.Identifiant())});
    EXPECT_GT(reponse.arguments().value(0).toString().size(), 40 << 20);
    EXPECT_TRUE(client.PeutCorriger("z32768", 0, 1023, std::string(1023, 'a')));
    EXPECT_EQ(client.Corrige("z32768", 0, 1023, "fin"), "");
    EXPECT_EQ(bureau.Finis(), 0);
    EXPECT_EQ(bureau.Contenu().size(), texte.size() - 1020);
}
