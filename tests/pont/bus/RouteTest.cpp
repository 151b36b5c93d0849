// SPDX-License-Identifier: MPL-2.0
// What the operations send, and the road of a correction.
#include "AgentDeTest.h"
#include "outils/bus/BureauDeTest.h"
#include "outils/bus/BusPrive.h"

#include <QJsonArray>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <memory>

namespace {

class BridgeRoad : public testing::Test {
  protected:
    std::vector<std::string> Appels() {
        std::vector<std::string> appels;
        for (QJsonValue const appel : bureau.DonneCommande().DonneJournal()) {
            auto texte = appel.toObject().value(QLatin1String("methode")).toString();
            for (QJsonValue const argument :
                 appel.toObject().value(QLatin1String("arguments")).toArray()) {
                texte += QLatin1Char(' ') + argument.toVariant().toString();
            }
            appels.push_back(texte.toStdString());
        }
        return appels;
    }

    BusPrive bus;
    BureauDeTest bureau{{"lettre.txt", "Les chat dort.\nUn \U0001F600 e\u0301te\u0301.\n\n"}};
    AgentDeTest agent{bureau.Identifiant()};
};

} // namespace

TEST_F(BridgeRoad, TheDocumentPartGoesToTwoMethodsAndTheWholeIdentifierToOne) {
    EXPECT_TRUE(agent.Initialise());
    EXPECT_FALSE(agent.DocEstMort());
    CollectionZonesDeTexte zones;
    EXPECT_TRUE(agent.SynchronisePositions(zones));
    EXPECT_EQ(Appels(), (std::vector<std::string>{"InitialiseTexteur doc1", "DocEstMort doc1",
                                                  "SynchronisePositions " + bureau.Identifiant()}));
}

TEST_F(BridgeRoad, ModesChooseTheMethodsAndThoseAboveTwoDiffer) {
    for (int const mode : {0, 1, 2, 3, -1}) {
        agent.InitialisePour(mode);
        agent.ActivePour(mode);
    }
    agent.AjusteSelectionPourOutils(-2, 3);
    agent.Suspends();
    agent.RompsLienCorrecteur();
    agent.RompsLienTexteur();
    bureau.DonneCommande().AttendsAppels("RompsLienTexteur", 1);
    EXPECT_EQ(Appels(),
              (std::vector<std::string>{"InitialisePourCorrecteur", "ActivePourCorrecteur",
                                        "InitialisePourOutils true", "ActivePourOutils",
                                        "InitialisePourOutils false", "ActivePourOutils",
                                        "InitialisePourOutils false", "InitialisePourOutils false",
                                        "AjusteSelectionPourOutils -2 3", "Suspends",
                                        "RompsLienCorrecteur", "RompsLienTexteur"}));
}

TEST_F(BridgeRoad, ACorrectionReachesTheDocumentAndTheZonesOwnText) {
    ASSERT_TRUE(agent.Initialise());
    CollectionZonesDeTexte zones;
    ASSERT_TRUE(agent.DonneZones(zones));
    ASSERT_EQ(zones.DonneNombre(), 3);
    auto& zone = *zones.DonneZone(0);
    EXPECT_TRUE(zone.PeutCorriger(4, 8, Uc("chat")));
    EXPECT_FALSE(zone.PeutCorriger(4, 8, Uc("chien")));
    EXPECT_TRUE(zone.CorrigeDansTexteur(4, 8, Uc("chats"), false));
    EXPECT_EQ(S(sdd::T(zone.DonneTexte().DonneTexte())), "Les chats dort.");
    auto& emoji = *zones.DonneZone(1);
    EXPECT_EQ(emoji.DonneLongueur(), 12);
    EXPECT_TRUE(emoji.CorrigeDansTexteur(3, 5, Uc("bel"), false));
    CollectionZonesDeTexte encore;
    ASSERT_TRUE(agent.SynchronisePositions(encore));
    EXPECT_EQ(S(sdd::T(encore.DonneZone(0)->DonneTexte().DonneTexte())), "Les chats dort.");
    EXPECT_EQ(bureau.DonneCommande().DonneTexte("doc1"),
              "Les chats dort.\nUn bel e\u0301te\u0301.\n\n");
}

TEST_F(BridgeRoad, TextTypedBetweenMakesACorrectionRefused) {
    ASSERT_TRUE(agent.Initialise());
    CollectionZonesDeTexte zones;
    ASSERT_TRUE(agent.SynchronisePositions(zones));
    auto const nom = zones.DonneZone(0);
    bureau.DonneCommande().TapeAvant("PeutCorriger", "z1", 4, 8, "chien");
    static_cast<void>(nom->PeutCorriger(4, 8, Uc("chat")));
    EXPECT_FALSE(nom->PeutCorriger(4, 8, Uc("chat")));
}

TEST_F(BridgeRoad, TheSelectionStandsInItsContextAndIsReplaced) {
    ASSERT_TRUE(agent.Initialise());
    CollectionZonesDeTexte zones;
    ASSERT_TRUE(agent.SynchronisePositions(zones));
    EXPECT_TRUE(zones.DonneZone(0)->SelectionneIntervalle(4, 8));
    int debut = -1;
    int fin = -1;
    EXPECT_EQ(S(agent.DonneContexte(&debut, &fin)), "Les chat dort.");
    EXPECT_EQ(debut, 4);
    EXPECT_EQ(fin, 8);
    EXPECT_EQ(agent.RemplaceEtReselectionne(Uc("chats")), 5);
    EXPECT_EQ(S(agent.DonneContexte(&debut, &fin)), "Les chats dort.");
    EXPECT_EQ(debut, 4);
    EXPECT_EQ(fin, 9);
}

TEST_F(BridgeRoad, TheThreeSelectionMethodsExistOnTheProxyAndAreNeverCalled) {
    ASSERT_TRUE(agent.Initialise());
    CollectionZonesDeTexte zones;
    ASSERT_TRUE(agent.SynchronisePositions(zones));
    int debut = 0;
    int fin = 0;
    agent.DonneContexte(&debut, &fin);
    agent.DonneTitreDocument();
    agent.DonneCheminDocument();
    agent.PermetsRetourDeCharriot();
    auto const methodes = " " + bureau.DonneCommande().DonneMethodes() + " ";
    for (std::string const nom :
         {" DonneContenuSelection ", " DonneDebutSelection ", " DonneFinSelection "}) {
        EXPECT_EQ(methodes.find(nom), std::string::npos) << nom;
    }
    for (char const* const nom :
         {"DonneContenuSelection", "DonneDebutSelection", "DonneFinSelection"}) {
        EXPECT_TRUE(QMetaObject::invokeMethod(agent.DonneProxy(), nom)) << nom;
    }
    bureau.DonneCommande().AttendsAppels("DonneFinSelection", 1);
}

TEST_F(BridgeRoad, ACompanionThatComesBackUnderItsNameIsAcceptedAgain) {
    ASSERT_TRUE(agent.Initialise());
    bureau.DonneCommande().QuitteLeNom();
    EXPECT_FALSE(agent.Initialise());
    bureau.DonneCommande().ReprendsLeNom();
    EXPECT_TRUE(agent.Initialise());
}

TEST_F(BridgeRoad, ACompanionStartedAnewUnderTheSameNameIsAcceptedWithoutANewAgent) {
    auto const ancien = std::make_unique<BureauDeTest>(
        std::initializer_list<BureauDeTest::Fichier>{{"ancienne.txt", "Avant.\n"}},
        std::vector<std::string>{"--instance", "meme"});
    AgentDeTest fidele("meme~doc1");
    ASSERT_TRUE(fidele.Initialise());
    EXPECT_EQ(S(fidele.DonneTitreDocument()), "ancienne.txt");
    ancien->Tue();
    EXPECT_EQ(S(fidele.DonneTitreDocument()), "");
    // Another process: another unique name than the one that the proxy remembers.
    BureauDeTest nouveau({{"nouvelle.txt", "Apr\u00E8s.\n"}}, {"--instance", "meme"});
    EXPECT_TRUE(fidele.Initialise());
    EXPECT_EQ(S(fidele.DonneTitreDocument()), "nouvelle.txt");
    CollectionZonesDeTexte zones;
    ASSERT_TRUE(fidele.SynchronisePositions(zones));
    ASSERT_EQ(zones.DonneNombre(), 1);
    EXPECT_TRUE(zones.DonneZone(0)->PeutCorriger(0, 5, Uc("Apr\u00E8s")));
}
