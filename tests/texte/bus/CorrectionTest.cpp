// SPDX-License-Identifier: MPL-2.0
#include "outils/bus/BureauDeTest.h"
#include "outils/bus/BusPrive.h"
#include "outils/bus/ClientBureau.h"

#include <gtest/gtest.h>

#include <climits>

namespace {

constexpr char kInconnue[] = "com.ombrel.vocalyne.texteurs.Erreur.ZoneInconnue";
constexpr char kRefusee[] = "com.ombrel.vocalyne.texteurs.Erreur.PlageRefusee";

class Corrections : public testing::Test {
  protected:
    Corrections() { zone = client.Synchronise(bureau.Identifiant()).at(0).nom; }

    std::string Document() { return bureau.DonneCommande().DonneTexte("doc1"); }
    void Tape(int debut, int fin, std::string const& texte) {
        bureau.DonneCommande().Tape(zone, debut, fin, texte);
    }

    BusPrive bus;
    BureauDeTest bureau{{{"a.txt", "Les chat dort ici.\n"}}};
    ClientBureau client{bureau.Instance()};
    std::string zone;
};

} // namespace

TEST_F(Corrections, AreMadeWhereTheTextIsTheOneGiven) {
    EXPECT_TRUE(client.PeutCorriger(zone, 4, 8, "chat"));
    EXPECT_EQ(client.Corrige(zone, 4, 8, "chats"), "");
    EXPECT_EQ(Document(), "Les chats dort ici.\n");
}

TEST_F(Corrections, GoOnAtTheHostsOwnOffsetsWithoutANewSynchronisation) {
    EXPECT_EQ(client.Corrige(zone, 4, 8, "chats"), "");
    EXPECT_TRUE(client.PeutCorriger(zone, 10, 14, "dort"));
    EXPECT_FALSE(client.PeutCorriger(zone, 9, 13, "dort"));
    EXPECT_EQ(client.Corrige(zone, 10, 14, "dorment"), "");
    EXPECT_EQ(Document(), "Les chats dorment ici.\n");
}

TEST_F(Corrections, AreRefusedWhereTheExpectedTextIsAnother) {
    EXPECT_FALSE(client.PeutCorriger(zone, 4, 8, "chats"));
    EXPECT_FALSE(client.PeutCorriger(zone, 4, 8, "Chat"));
    EXPECT_FALSE(client.PeutCorriger(zone, 4, 8, ""));
    EXPECT_FALSE(client.PeutCorriger(zone, 4, 9, "chat"));
}

TEST_F(Corrections, AreRefusedAtOffsetsThatAreNone) {
    for (auto const& [debut, fin] : {std::pair{-1, 4},
                                     {8, 4},
                                     {0, 19},
                                     {19, 19},
                                     {INT_MIN, INT_MAX},
                                     {INT_MAX, INT_MIN},
                                     {INT_MAX, INT_MAX},
                                     {INT_MIN, INT_MIN}}) {
        EXPECT_FALSE(client.PeutCorriger(zone, debut, fin, ""));
        EXPECT_EQ(client.Corrige(zone, debut, fin, "x"), kRefusee);
    }
    EXPECT_EQ(Document(), "Les chat dort ici.\n");
}

TEST_F(Corrections, FindAMovedRangeAgain) {
    Tape(0, 0, "Oui. ");
    EXPECT_TRUE(client.PeutCorriger(zone, 4, 8, "chat"));
    EXPECT_EQ(client.Corrige(zone, 4, 8, "chats"), "");
    EXPECT_EQ(client.Corrige(zone, 10, 14, "dorment"), "");
    EXPECT_EQ(Document(), "Oui. Les chats dorment ici.\n");
}

TEST_F(Corrections, AreRefusedWhereSomeoneTyped) {
    Tape(6, 6, "XX");
    EXPECT_FALSE(client.PeutCorriger(zone, 4, 8, "chat"));
    EXPECT_EQ(client.Corrige(zone, 4, 8, "chats"), kRefusee);
    EXPECT_EQ(Document(), "Les chXXat dort ici.\n");
    zone = client.Synchronise(bureau.Identifiant()).at(0).nom;
    EXPECT_TRUE(client.PeutCorriger(zone, 4, 10, "chXXat"));
    EXPECT_EQ(client.Corrige(zone, 4, 10, "chats"), "");
    EXPECT_EQ(Document(), "Les chats dort ici.\n");
}

TEST_F(Corrections, AreRefusedBetweenTheQuestionAndTheEditToo) {
    bureau.DonneCommande().TapeAvant("CorrigeDansTexteur", zone, 4, 8, "chien");
    EXPECT_TRUE(client.PeutCorriger(zone, 4, 8, "chat"));
    EXPECT_EQ(client.Corrige(zone, 4, 8, "chats"), kRefusee);
    EXPECT_EQ(Document(), "Les chien dort ici.\n");
}

TEST_F(Corrections, AfterARefusalWhatFollowsIsOnlyRightOnceSynchronised) {
    Tape(4, 8, "chien");
    EXPECT_EQ(client.Corrige(zone, 4, 8, "chats noirs"), kRefusee);
    // The caller may count from "Les chats noirs dort" or from "Les chat dort": nobody can tell.
    EXPECT_EQ(client.Corrige(zone, 9, 13, "dorment"), kRefusee);
    EXPECT_EQ(client.Corrige(zone, 16, 20, "dorment"), kRefusee);
    EXPECT_EQ(client.Corrige(zone, 0, 3, "Des"), "");
    EXPECT_EQ(Document(), "Des chien dort ici.\n");
    client.Synchronise(bureau.Identifiant());
    EXPECT_EQ(client.Corrige(zone, 10, 14, "mord"), "");
    EXPECT_EQ(Document(), "Des chien mord ici.\n");
}

TEST_F(Corrections, AfterOneRefusedForItsLineEndWhatFollowsIsNotSureEither) {
    EXPECT_EQ(client.Corrige(zone, 4, 8, "un\ndeux"),
              "com.ombrel.vocalyne.texteurs.Erreur.FinDeLigne");
    EXPECT_EQ(client.Corrige(zone, 9, 13, "dorment"), kRefusee);
    EXPECT_EQ(client.Corrige(zone, 0, 3, "Des"), "");
    EXPECT_EQ(Document(), "Des chat dort ici.\n");
}

TEST_F(Corrections, AreRefusedToACallerThatWasNeverGivenTheZone) {
    ClientBureau const autre(bureau.Instance());
    EXPECT_FALSE(autre.PeutCorriger(zone, 4, 8, "chat"));
    EXPECT_EQ(autre.Corrige(zone, 4, 8, "chats"), kInconnue);
    EXPECT_EQ(Document(), "Les chat dort ici.\n");
}

TEST_F(Corrections, OfOneHostAreSomeoneElsesToAnother) {
    ClientBureau const autre(bureau.Instance());
    autre.Synchronise(bureau.Identifiant());
    EXPECT_EQ(client.Corrige(zone, 0, 3, "Quelques"), "");
    EXPECT_FALSE(autre.PeutCorriger(zone, 0, 3, "Les"));
    EXPECT_TRUE(autre.PeutCorriger(zone, 9, 13, "dort"));
    EXPECT_EQ(autre.Corrige(zone, 9, 13, "dorment"), "");
    EXPECT_EQ(client.Corrige(zone, 9, 13, "chats"), "");
    EXPECT_EQ(Document(), "Quelques chats dorment ici.\n");
}

TEST_F(Corrections, TheToolsReplacementIsNotTakenForTheHostsOwnCorrection) {
    EXPECT_EQ(client.Erreur("SelectionneIntervalle", {QString::fromStdString(zone), 0, 3}), "");
    EXPECT_EQ(client.Erreur("RemplaceEtReselectionne", {QStringLiteral("Quelques")}), "");
    EXPECT_FALSE(client.PeutCorriger(zone, 0, 3, "Les"));
    EXPECT_TRUE(client.PeutCorriger(zone, 4, 8, "chat"));
    EXPECT_EQ(client.Corrige(zone, 4, 8, "chats"), "");
    EXPECT_EQ(Document(), "Quelques chats dort ici.\n");
}

TEST_F(Corrections, AThousandInOneZoneStayInPlaceWhileThePersonTypesBefore) {
    std::string attendu;
    std::string depart;
    for (int i = 0; i < 1000; ++i) {
        depart += "mot" + std::to_string(i) + " ";
        attendu += "MOTS" + std::to_string(i) + " ";
    }
    Tape(0, 18, depart);
    client.Synchronise(bureau.Identifiant());
    int debut = 0;
    std::string tapes;
    for (int i = 0; i < 1000; ++i) {
        if (i % 100 == 50) {
            Tape(0, 0, "#");
            tapes += "#";
        }
        ASSERT_TRUE(client.PeutCorriger(zone, debut, debut + 3, "mot")) << i;
        ASSERT_EQ(client.Corrige(zone, debut, debut + 3, "MOTS"), "") << i;
        debut += 5 + static_cast<int>(std::to_string(i).size());
    }
    EXPECT_EQ(Document(), tapes + attendu + "\n");
}

TEST_F(Corrections, InAZoneThatThePersonDeletedAreErrors) {
    bureau.DonneCommande().InsereZone(zone, "Deux.");
    bureau.DonneCommande().SupprimeZone(zone);
    EXPECT_FALSE(client.PeutCorriger(zone, 4, 8, "chat"));
    EXPECT_EQ(client.Corrige(zone, 4, 8, "chats"), kInconnue);
    EXPECT_EQ(Document(), "Deux.\n");
}

TEST_F(Corrections, OtherZonesKeepTheirKeysWhenParagraphsComeAndGo) {
    std::string const apres = bureau.DonneCommande().InsereZone(zone, "Deux.");
    std::string const entre = bureau.DonneCommande().InsereZone(zone, "Un et demi.");
    std::vector<ZoneServie> const zones = client.Synchronise(bureau.Identifiant());
    ASSERT_EQ(zones.size(), 3U);
    EXPECT_EQ(zones[0].nom, zone);
    EXPECT_EQ(zones[1].nom, entre);
    EXPECT_EQ(zones[2].nom, apres);
    EXPECT_EQ(client.Corrige(apres, 0, 4, "Trois"), "");
    EXPECT_EQ(Document(), "Les chat dort ici.\nUn et demi.\nTrois.\n");
}

TEST_F(Corrections, InADocumentThatThePersonClosedAreErrorsAndItIsDead) {
    bureau.DonneCommande().FermeDocument("doc1");
    EXPECT_TRUE(client.Appelle("DocEstMort", {QStringLiteral("doc1")}).arguments()[0].toBool());
    EXPECT_EQ(client.Erreur("DonneTitreDocument"),
              "com.ombrel.vocalyne.texteurs.Erreur.DocumentFerme");
    EXPECT_FALSE(client.PeutCorriger(zone, 4, 8, "chat"));
    EXPECT_EQ(client.Corrige(zone, 4, 8, "chats"), kInconnue);
    EXPECT_EQ(client.Erreur("InitialiseTexteur", {QStringLiteral("doc1")}),
              "com.ombrel.vocalyne.texteurs.Erreur.DocumentInconnu");
}
