// SPDX-License-Identifier: MPL-2.0
// Documents with no zone at all, and with as many as a long book.
#include "AgentDeTest.h"
#include "outils/bus/BureauDeTest.h"
#include "outils/bus/BusPrive.h"

#include <gtest/gtest.h>

#include <string>

TEST(BridgeNumbersOfZones, ADocumentWithoutZonesIsAnAnswerThatAddsNone) {
    BusPrive const bus;
    BureauDeTest bureau{{"lettre.txt", "Les chat dort.\n"}};
    AgentDeTest agent(bureau.Identifiant());
    ASSERT_TRUE(agent.Initialise());
    CollectionZonesDeTexte zones;
    for (char const* const document : {"{\"Zones\":[]}", "{\"Zones\":null}", "{}", ""}) {
        bureau.DonneCommande().Deregle("SynchronisePositions", "texte", document);
        EXPECT_TRUE(agent.SynchronisePositions(zones)) << document;
        EXPECT_EQ(zones.DonneNombre(), 0) << document;
    }
    bureau.DonneCommande().Retablis();
    EXPECT_TRUE(agent.SynchronisePositions(zones));
    EXPECT_EQ(zones.DonneNombre(), 1);
}

TEST(BridgeNumbersOfZones, AHundredThousandZonesComeInOrderAndTheLastCanBeCorrected) {
    constexpr int kNombre = 100000;
    std::string texte;
    for (int i = 1; i <= kNombre; ++i) {
        texte += "Ligne " + std::to_string(i) + ".\n";
    }
    BusPrive const bus;
    BureauDeTest bureau{{"livre.txt", texte}};
    AgentDeTest agent(bureau.Identifiant());
    ASSERT_TRUE(agent.Initialise());
    CollectionZonesDeTexte zones;
    ASSERT_TRUE(agent.SynchronisePositions(zones));
    ASSERT_EQ(zones.DonneNombre(), kNombre);
    for (int i = 0; i < kNombre; ++i) {
        ASSERT_EQ(S(sdd::T(zones.DonneZone(i)->DonneTexte().DonneTexte())),
                  "Ligne " + std::to_string(i + 1) + ".");
    }
    auto& derniere = *zones.DonneZone(kNombre - 1);
    EXPECT_TRUE(derniere.PeutCorriger(0, 5, Uc("Ligne")));
    EXPECT_TRUE(derniere.CorrigeDansTexteur(0, 5, Uc("Fin"), false));
    EXPECT_TRUE(derniere.PeutCorriger(0, 3, Uc("Fin")));
}
