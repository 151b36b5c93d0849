// SPDX-License-Identifier: MPL-2.0
// Thousands of rounds of a host's work leave nothing behind.
#include "AgentDeTest.h"
#include "outils/Repetitions.h"
#include "outils/bus/BureauDeTest.h"
#include "outils/bus/BusPrive.h"

#include <gtest/gtest.h>

#include <fstream>
#include <string>

namespace {

/// Resident memory, in KiB.
long Memoire() {
    std::ifstream etat("/proc/self/status");
    for (std::string mot; etat >> mot;) {
        long valeur = 0;
        if (mot == "VmRSS:" && etat >> valeur) {
            return valeur;
        }
    }
    return 0;
}

class BridgeEndurance : public testing::Test {
  protected:
    /// An agent is made, reads the document, asks, corrects there and back, and goes.
    void Tour() {
        AgentDeTest agent(bureau_.Identifiant());
        ASSERT_TRUE(agent.Initialise());
        for (auto const* mot : {"chien", "chat"}) {
            CollectionZonesDeTexte zones;
            ASSERT_TRUE(agent.SynchronisePositions(zones));
            auto& zone = *zones.DonneZone(0);
            int const fin = zone.DonneLongueur() - 6;
            ASSERT_TRUE(zone.PeutCorriger(4, fin, Uc(fin == 8 ? "chat" : "chien")));
            ASSERT_TRUE(zone.CorrigeDansTexteur(4, fin, Uc(mot), false));
            ASSERT_TRUE(zone.SelectionneIntervalle(0, 3));
        }
        EXPECT_EQ(S(agent.DonneTitreDocument()), "lettre.txt");
    }

    BusPrive bus_;
    BureauDeTest bureau_{{"lettre.txt", "Les chat dort.\n"}};
};

TEST_F(BridgeEndurance, RoundsOfReadingAndCorrectingKeepNoMemory) {
    constexpr int kRodage = 50; // what is made once and kept
    for (int i = 0; i < kRodage; ++i) {
        Tour();
    }
    auto const avant = Memoire();
    int const tours = Repetitions(200, 10'000);
    for (int i = 0; i < tours && !HasFatalFailure(); ++i) {
        Tour();
    }
#ifdef __SANITIZE_ADDRESS__
    constexpr long kDeriveMax = 256L * 1024; // it keeps what was freed, for a while
#else
    constexpr long kDeriveMax = 2L * 1024;
#endif
    EXPECT_LT(Memoire() - avant, kDeriveMax);
}

} // namespace
