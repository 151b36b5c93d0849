// SPDX-License-Identifier: MPL-2.0
// Identifiers that nobody gives out: no crash, no long wait, and the bus stays usable.
#include "AgentDeTest.h"
#include "outils/bus/BureauDeTest.h"
#include "outils/bus/BusPrive.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

namespace {

UniChaine Unites(std::u16string const& texte) {
    return {texte.data(), static_cast<int>(texte.size())};
}

/// What no name holds, and what few texts do.
std::vector<std::u16string> Etranges() {
    using namespace std::string_literals;
    auto const seule = static_cast<char16_t>(0xD83D);
    return {u"a\0b"s,
            u"\0"s,
            std::u16string(1, seule),
            u"a" + std::u16string(1, seule) + u"b",
            std::u16string(1, static_cast<char16_t>(0xDE00)),
            u"a b"s,
            u" "s,
            u"7"s,
            u"a~b~c"s,
            u"\u00E9\n\t"s,
            std::u16string(1 << 20, u'a')};
}

class BridgeIdentifiers : public testing::Test {
  protected:
    /// Whatever is asked of it.
    static void DemandeTout(AgentDeTest& agent) {
        EXPECT_FALSE(agent.Initialise());
        CollectionZonesDeTexte zones;
        EXPECT_FALSE(agent.SynchronisePositions(zones));
        EXPECT_EQ(zones.DonneNombre(), 0);
        static_cast<void>(agent.DocEstMort());
        agent.InitialisePour(0);
        agent.ActivePour(0);
        agent.RompsLienTexteur();
    }

    BusPrive bus;
    BureauDeTest bureau{{"lettre.txt", "Les chat dort.\n"}};
    AgentDeTest agent{bureau.Identifiant()};
};

} // namespace

TEST_F(BridgeIdentifiers, AnInstanceThatNoNameCanHoldIsRefusedQuickly) {
    auto const depart = std::chrono::steady_clock::now();
    for (auto const& etrange : Etranges()) {
        AgentDeTest impossible(Unites(etrange + u"~doc1"));
        DemandeTout(impossible);
        EXPECT_EQ(impossible.DocEstMort(), !impossible.EstLie());
        EXPECT_EQ(S(impossible.DonneTitreDocument()), "");
    }
    EXPECT_LT(std::chrono::steady_clock::now() - depart, std::chrono::seconds(20));
    EXPECT_EQ(bureau.DonneCommande().DonneMethodes(), "");
    EXPECT_TRUE(agent.Initialise());
}

TEST_F(BridgeIdentifiers, ADocumentThatTheCompanionDoesNotKnowIsRefusedQuickly) {
    auto const instance = Uc(bureau.Instance() + "~").VersQString().toStdU16String();
    auto const depart = std::chrono::steady_clock::now();
    for (auto const& etrange : Etranges()) {
        AgentDeTest inconnu(Unites(instance + etrange));
        DemandeTout(inconnu);
        EXPECT_TRUE(inconnu.DocEstMort());
    }
    EXPECT_LT(std::chrono::steady_clock::now() - depart, std::chrono::seconds(20));
    EXPECT_TRUE(agent.Initialise());
    EXPECT_EQ(S(agent.DonneTitreDocument()), "lettre.txt");
}

TEST_F(BridgeIdentifiers, OneThatTheBusWouldChangeOpensNoOtherDocument) {
    using namespace std::string_literals;
    auto const instance = Uc(bureau.Instance()).VersQString().toStdU16String();
    auto const moitie = static_cast<char16_t>(0xD83D);
    ASSERT_TRUE(agent.Initialise()) << "what is left of each is an identifier that serves";
    bureau.DonneCommande().VideJournal();
    for (auto const& identificateur :
         {instance + u"~doc1\0c"s, instance + u"~doc1\0"s, instance + u"\0b~doc1"s,
          instance + u"~doc1~\0"s, instance + u"~doc1~" + moitie}) {
        AgentDeTest autre(Unites(identificateur));
        DemandeTout(autre);
        autre.RemplaceEtReselectionne(Uc("mot"));
    }
    EXPECT_EQ(bureau.DonneCommande().DonneMethodes(), "");
}
