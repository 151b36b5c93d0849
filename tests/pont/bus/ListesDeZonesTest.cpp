// SPDX-License-Identifier: MPL-2.0
// What a synchronisation does to the host's collection, whatever the companion answers.
#include "AgentDeTest.h"
#include "outils/bus/BureauDeTest.h"
#include "outils/bus/BusPrive.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <exception>
#include <string>
#include <vector>

namespace {

class BridgeZoneLists : public testing::Test {
  protected:
    BridgeZoneLists() {
        EXPECT_TRUE(agent.Initialise());
        EXPECT_TRUE(agent.SynchronisePositions(zones));
    }

    void Repond(std::string const& document) {
        bureau.DonneCommande().Deregle("SynchronisePositions", "texte", document);
    }

    std::vector<std::string> Textes() const {
        std::vector<std::string> textes;
        textes.reserve(static_cast<std::size_t>(zones.DonneNombre()));
        for (int i = 0; i < zones.DonneNombre(); ++i) {
            textes.push_back(S(sdd::T(zones.DonneZone(i)->DonneTexte().DonneTexte())));
        }
        return textes;
    }

    BusPrive bus;
    BureauDeTest bureau{{"lettre.txt", "Les chat dort.\n"}};
    AgentDeTest agent{bureau.Identifiant()};
    CollectionZonesDeTexte zones;
};

} // namespace

TEST_F(BridgeZoneLists, ZonesBelongToTheCollectionAndStandBehindThoseOfTheCallBefore) {
    ASSERT_TRUE(agent.DonneZones(zones));
    EXPECT_EQ(Textes(), (std::vector<std::string>{"Les chat dort.", "Les chat dort."}));
    EXPECT_NE(zones.DonneZone(0), zones.DonneZone(1));
    EXPECT_TRUE(zones.Possede(0));
    EXPECT_TRUE(zones.Possede(1));
}

TEST_F(BridgeZoneLists, AReplyThatIsNoneLeavesTheCollectionAsItWas) {
    auto* const zone = zones.DonneZone(0);
    for (char const* const reponse : {"", "not JSON", "{", "[]", "null", "{}", "{\"Zones\":{}}",
                                      "{\"Zones\":{\"Nom\":\"ejE=\"}}", "{\"Zones\":\"ejE=\"}"}) {
        Repond(reponse);
        EXPECT_TRUE(agent.SynchronisePositions(zones)) << "the companion answered: " << reponse;
        ASSERT_EQ(zones.DonneNombre(), 1) << reponse;
        EXPECT_EQ(zones.DonneZone(0), zone) << reponse;
    }
    EXPECT_TRUE(zone->PeutCorriger(4, 8, Uc("chat"))) << "and its zone as it was";
}

TEST_F(BridgeZoneLists, AnIntegerThatIsNoneThrowsAndTheZonesBeforeItStay) {
    Repond("{\"Zones\":[{\"Texte\":\"VW4=\"},{\"Texte\":\"RGV1eA==\",\"DebutSel\":\"3\"},{}]}");
    try {
        agent.SynchronisePositions(zones);
        ADD_FAILURE() << "nothing was thrown";
    } catch (std::exception const& erreur) {
        EXPECT_STREQ(erreur.what(), "Type is not convertible to int");
    }
    EXPECT_EQ(Textes(), (std::vector<std::string>{"Les chat dort.", "Un"}));
}
