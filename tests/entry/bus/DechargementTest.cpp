// SPDX-License-Identifier: MPL-2.0
// The plug-in is unloaded while its calls are under way: QtDBus keeps their messages beyond it.
#include "outils/bus/BureauDeTest.h"
#include "outils/bus/BusPrive.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

/// With an application of the host's (true), or with the one that the plug-in makes and takes away.
class UnloadingWithCallsUnderWay : public testing::TestWithParam<bool> {
  protected:
    /// The exit code of a host that does what the words say; 0 where all went well.
    int Fais(std::string const& mots) {
        std::vector<std::string> commande{CHEMIN_DECHARGEUR, CHEMIN_GREFFON, bureau.Identifiant(),
                                          std::to_string(bureau.DonneProcessus().Pid())};
        if (GetParam()) {
            commande.emplace_back("application");
        }
        std::istringstream flux(mots);
        for (std::string mot; flux >> mot;) {
            commande.push_back(mot);
        }
        Processus hote(commande,
                       {{"HOME", maison.Chemin().string()}, {"QT_QPA_PLATFORM", "offscreen"}});
        return hote.Attends();
    }

    BusPrive bus;
    DossierTemporaire maison;
    BureauDeTest bureau{{"lettre.txt", "Les chat dort.\n"}};
};

} // namespace

TEST_P(UnloadingWithCallsUnderWay, TheAnswersThatComeAfterwardsHarmNobody) {
    EXPECT_EQ(Fais("charge agent fige appels detruis decharge degele reponses"), 0);
}

TEST_P(UnloadingWithCallsUnderWay, ACompanionThatDiesAfterwardsHarmsNobody) {
    EXPECT_EQ(Fais("charge agent fige appels detruis decharge tue erreurs"), 0);
    bureau.DonneProcessus().Attends();
}

TEST_P(UnloadingWithCallsUnderWay, TheProcessCanEndAfterwardsOrWithTheAgentStillThere) {
    EXPECT_EQ(Fais("charge agent fige appels detruis decharge"), 0);
    bureau.DonneProcessus().Signale(SIGCONT);
    EXPECT_EQ(Fais("charge agent fige appels detruis"), 0);
    bureau.DonneProcessus().Signale(SIGCONT);
    EXPECT_EQ(Fais("charge agent fige appels"), 0);
    bureau.DonneProcessus().Signale(SIGCONT);
}

TEST_P(UnloadingWithCallsUnderWay, LoadedAgainItServesTheSameDocument) {
    EXPECT_EQ(Fais("charge agent fige appels detruis decharge charge degele reponses agent fige "
                   "appels detruis decharge degele reponses"),
              0);
}

INSTANTIATE_TEST_SUITE_P(OfTheHostOrThePlugIn, UnloadingWithCallsUnderWay, testing::Bool(),
                         [](auto const& cas) {
                             return cas.param ? "HostsApplication" : "OwnApplication";
                         });
