// SPDX-License-Identifier: MPL-2.0
// The agent whose link is gone: each operation gives its neutral answer and nothing is sent.
#include "AgentEssai.h"
#include "ZoneDeTexteOOoProxy.h"
#include "outils/AlertesNotees.h"
#include "outils/Textes.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

class AgentWithoutAProxy : public testing::Test {
  protected:
    AgentWithoutAProxy() { agent_.LibereProxy(); }
    AgentEssai agent_{U(u"essai~doc")};
    InterfaceAgentTexteur& hote_ = agent_;
};

TEST_F(AgentWithoutAProxy, IsNotLinkedAndItsDocumentCountsAsGone) {
    EXPECT_FALSE(hote_.EstLie());
    EXPECT_TRUE(hote_.DocEstMort());
}

TEST_F(AgentWithoutAProxy, CannotBeInitialised) {
    UniChaine message;
    AlertesNotees const alertes;
    EXPECT_FALSE(hote_.InitialiseTexteur(U(u"VCLSalFrame:OpenOffice.org 4.0"), message, 0));
    EXPECT_TRUE(alertes.Donne().empty());
}

TEST_F(AgentWithoutAProxy, AnswersWithNothing) {
    EXPECT_TRUE(hote_.DonneCheminDocument().EstVide());
    EXPECT_TRUE(hote_.DonneTitreDocument().EstVide());
    EXPECT_FALSE(hote_.PermetsRetourDeCharriot());
    EXPECT_EQ(0, hote_.AjusteSelectionPourOutils(1, 2));
    EXPECT_EQ(0, hote_.RemplaceEtReselectionne(U(u"mot")));
}

TEST_F(AgentWithoutAProxy, LeavesTheCollectionUntouched) {
    CollectionZonesDeTexte zones;
    zones.AjoutePossedee(
        std::make_unique<ZoneDeTexteOOoProxy>(nullptr, nullptr, U(u"t"), U(u"n"), 0, 0));
    EXPECT_FALSE(hote_.SynchronisePositions(zones));
    EXPECT_FALSE(hote_.DonneZones(zones));
    EXPECT_EQ(1, zones.DonneNombre());
}

TEST_F(AgentWithoutAProxy, LeavesTheContextsBoundsAsTheCallerSetThem) {
    int debut = 11;
    int fin = 12;
    EXPECT_TRUE(hote_.DonneContexte(&debut, &fin).EstVide());
    EXPECT_EQ(11, debut);
    EXPECT_EQ(12, fin);
}

TEST(AgentOfAnIdentifierThatTheBusWouldChange, HasNoProxyAndCannotBeInitialised) {
    char16_t const moitie[] = {u'a', u'~', 0xDE00};
    for (auto const& identificateur : {UniChaine(u"essai~do\0c", 10), UniChaine(u"es\0sai~doc", 10),
                                       UniChaine(u"essai~doc\0", 10), UniChaine(moitie, 3)}) {
        AgentEssai agent(identificateur);
        EXPECT_EQ(nullptr, agent.DonneProxy());
        EXPECT_EQ(identificateur, agent.DonneIdentificateur());
        UniChaine message;
        EXPECT_FALSE(agent.InitialiseTexteur(U(u"VCLSalFrame:OpenOffice.org 4.0"), message, 0));
        EXPECT_TRUE(agent.DocEstMort());
        CollectionZonesDeTexte zones;
        EXPECT_FALSE(agent.SynchronisePositions(zones));
    }
}

TEST_F(AgentWithoutAProxy, TakesEveryRequestWithoutHarm) {
    for (int const mode : {0, 1, 2, 3, -1}) {
        hote_.InitialisePour(mode);
        hote_.ActivePour(mode);
    }
    hote_.RompsLienCorrecteur();
    hote_.RompsLienTexteur();
    hote_.Suspends();
    agent_.LibereProxy(); // once more
    EXPECT_FALSE(hote_.EstLie());
}

} // namespace
