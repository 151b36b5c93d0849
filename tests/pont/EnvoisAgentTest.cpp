// SPDX-License-Identifier: MPL-2.0
// What an agent sends for each operation of the host: method, arguments and their types.
#include "AgentEssai.h"
#include "AppelsNotes.h"
#include "VocalyneOpenOfficeProxyQDBUS.h"
#include "outils/AlertesNotees.h"
#include "outils/Textes.h"
#include "outils/bus/BusPrive.h"

#include <gtest/gtest.h>

#include <climits>
#include <functional>
#include <stdexcept>
#include <vector>

namespace {

using appelsNotes::Appel;
using Appels = std::vector<Appel>;

Appel Vers(char const* methode, QList<QVariant> const& arguments = {}, int delai = -1) {
    return {QStringLiteral("com.ombrel.vocalyne.texteurs.OpenOffice.inst"),
            QString::fromLatin1(methode), arguments, delai};
}

class AgentSends : public testing::Test {
  protected:
    AgentSends() { appelsNotes::Prends(); }
    ~AgentSends() override { appelsNotes::Leve(false); }

    BusPrive bus_; // only what could leave counts as sent
    AgentEssai agent_{U(u"inst~doc3")};
    InterfaceAgentTexteur& hote_ = agent_;
};

TEST_F(AgentSends, NothingWhenItIsMadeAndNothingWhenItIsDestroyed) {
    appelsNotes::Prends();
    { AgentEssai const agent(U(u"inst~doc3")); }
    EXPECT_EQ(Appels{}, appelsNotes::Prends());
}

TEST_F(AgentSends, TheDocumentPartAtFirstContactWithinFourMinutes) {
    UniChaine message;
    hote_.InitialiseTexteur(U(u"VCLSalFrame:OpenOffice.org 4.0"), message, 2);
    EXPECT_EQ(Appels{Vers("InitialiseTexteur", {QStringLiteral("doc3")}, 240000)},
              appelsNotes::Prends());
}

TEST_F(AgentSends, NothingForTheOldWindowClass) {
    AlertesNotees const alertes;
    UniChaine message;
    EXPECT_FALSE(hote_.InitialiseTexteur(U(u"VCLSalFrame:OpenOffice.org 3.0"), message, 0));
    EXPECT_EQ(1U, alertes.Donne().size());
    EXPECT_EQ(Appels{}, appelsNotes::Prends());
}

TEST_F(AgentSends, TheDocumentPartWhenAskingForLifeWithinOneAndAHalfSeconds) {
    hote_.DocEstMort();
    EXPECT_EQ(Appels{Vers("DocEstMort", {QStringLiteral("doc3")}, 1500)}, appelsNotes::Prends());
}

TEST_F(AgentSends, TheWholeIdentifierWhenItSynchronises) {
    CollectionZonesDeTexte zones;
    hote_.SynchronisePositions(zones);
    hote_.DonneZones(zones);
    auto const appel = Vers("SynchronisePositions", {QStringLiteral("inst~doc3")});
    EXPECT_EQ((Appels{appel, appel}), appelsNotes::Prends());
}

TEST_F(AgentSends, InitialisationForTheCorrectorInModeZeroAndForTheToolsInAnyOther) {
    struct Cas {
        int mode;
        Appel appel;
    };
    Cas const cas[] = {
        {0, Vers("InitialisePourCorrecteur")},
        {1, Vers("InitialisePourOutils", {true})},
        {2, Vers("InitialisePourOutils", {false})},
        {3, Vers("InitialisePourOutils", {false})},
        {-1, Vers("InitialisePourOutils", {false})},
        {INT_MIN, Vers("InitialisePourOutils", {false})},
        {INT_MAX, Vers("InitialisePourOutils", {false})},
    };
    for (auto const& c : cas) {
        hote_.InitialisePour(c.mode);
        EXPECT_EQ(Appels{c.appel}, appelsNotes::Prends()) << c.mode;
    }
}

TEST_F(AgentSends, ActivationForTheToolsInModesOneAndTwoAndNothingBeyondThem) {
    struct Cas {
        int mode;
        Appels appels;
    };
    Cas const cas[] = {
        {0, {Vers("ActivePourCorrecteur")}},
        {1, {Vers("ActivePourOutils")}},
        {2, {Vers("ActivePourOutils")}},
        {3, {}},
        {-1, {}},
        {INT_MIN, {}},
        {INT_MAX, {}},
    };
    for (auto const& c : cas) {
        hote_.ActivePour(c.mode);
        EXPECT_EQ(c.appels, appelsNotes::Prends()) << c.mode;
    }
}

TEST_F(AgentSends, EachRequestWithoutArgumentsUnderItsOwnName) {
    struct Cas {
        char const* methode;
        std::function<void()> demande;
    };
    Cas const cas[] = {
        {"RompsLienCorrecteur", [this] { hote_.RompsLienCorrecteur(); }},
        {"RompsLienTexteur", [this] { hote_.RompsLienTexteur(); }},
        {"Suspends", [this] { hote_.Suspends(); }},
        {"DonneCheminDocument", [this] { hote_.DonneCheminDocument(); }},
        {"DonneTitreDocument", [this] { hote_.DonneTitreDocument(); }},
        {"PermetsRetourDeCharriot", [this] { hote_.PermetsRetourDeCharriot(); }},
    };
    for (auto const& c : cas) {
        c.demande();
        c.demande(); // any number of times
        EXPECT_EQ((Appels{Vers(c.methode), Vers(c.methode)}), appelsNotes::Prends());
    }
}

TEST_F(AgentSends, ASuspensionThatNeverFailsTowardsTheHost) {
    appelsNotes::Leve(true);
    EXPECT_NO_THROW(hote_.Suspends());
    EXPECT_EQ(Appels{Vers("Suspends")}, appelsNotes::Prends());
}

TEST_F(AgentSends, WithTheEarlierTimeOutBackAlsoWhereSendingThrows) {
    appelsNotes::Leve(true);
    UniChaine message;
    EXPECT_THROW(hote_.DocEstMort(), std::runtime_error);
    EXPECT_EQ(-1, agent_.DonneProxy()->timeout());
    EXPECT_THROW(hote_.InitialiseTexteur({}, message, 0), std::runtime_error);
    EXPECT_EQ(-1, agent_.DonneProxy()->timeout());
}

TEST_F(AgentSends, TheThreeQuestionsOfAContextInOrder) {
    int debut = 0;
    int fin = 0;
    hote_.DonneContexte(&debut, &fin);
    EXPECT_EQ((Appels{Vers("DonneContexteSelection"), Vers("DonneDebutSelectionDansSonContexte"),
                      Vers("DonneFinSelectionDansSonContexte")}),
              appelsNotes::Prends());
}

TEST_F(AgentSends, TheContextsQuestionsThroughItsOwnOperations) {
    class Propre : public AgentEssai {
      public:
        Propre()
            : InterfaceTexteur(U(u"inst~doc3"))
            , AgentEssai(U(u"inst~doc3")) {}
        UniChaine DonneContexteSelection() override { return U(u"contexte"); }
        int DonneDebutSelectionDansSonContexte() override { return 3; }
        int DonneFinSelectionDansSonContexte() override { return 4; }
    };
    Propre agent;
    int debut = 0;
    int fin = 0;
    EXPECT_EQ(U(u"contexte"), agent.DonneContexte(&debut, &fin));
    EXPECT_EQ(3, debut);
    EXPECT_EQ(4, fin);
    EXPECT_EQ(Appels{}, appelsNotes::Prends());
}

TEST_F(AgentSends, TheDeltasOfTheSelectionAsTheyAre) {
    EXPECT_EQ(0, hote_.AjusteSelectionPourOutils(INT_MIN, INT_MAX));
    EXPECT_EQ(Appels{Vers("AjusteSelectionPourOutils", {INT_MIN, INT_MAX})}, appelsNotes::Prends());
}

TEST_F(AgentSends, AReplacementOfTheSelectionAndAnswersItsLength) {
    EXPECT_EQ(4, hote_.RemplaceEtReselectionne(U(u"a\U0001F600b")));
    EXPECT_EQ(0, hote_.RemplaceEtReselectionne(UniChaine()));
    EXPECT_EQ((Appels{Vers("RemplaceEtReselectionne", {QString::fromUtf8("a\U0001F600b")}),
                      Vers("RemplaceEtReselectionne", {QString()})}),
              appelsNotes::Prends());
}

TEST_F(AgentSends, NoTextThatTheBusCannotCarryUnchanged) {
    char16_t const moitie[] = {u'a', 0xD83D};
    EXPECT_EQ(0, hote_.RemplaceEtReselectionne(UniChaine(u"a\0b", 3)));
    EXPECT_EQ(0, hote_.RemplaceEtReselectionne(UniChaine(moitie, 2)));
    EXPECT_EQ(Appels{}, appelsNotes::Prends());
}

TEST_F(AgentSends, AnEmptyDocumentPartForAnIdentifierWithoutATilde) {
    AgentEssai agent(U(u"inst"));
    appelsNotes::Prends();
    agent.DocEstMort();
    CollectionZonesDeTexte zones;
    agent.SynchronisePositions(zones);
    EXPECT_EQ((Appels{Vers("DocEstMort", {QString()}, 1500),
                      Vers("SynchronisePositions", {QStringLiteral("inst")})}),
              appelsNotes::Prends());
}

TEST_F(AgentSends, NothingWithoutAProxy) {
    agent_.LibereProxy();
    int debut = 0;
    int fin = 0;
    UniChaine message;
    CollectionZonesDeTexte zones;
    hote_.InitialiseTexteur({}, message, 0);
    hote_.DocEstMort();
    hote_.InitialisePour(0);
    hote_.InitialisePour(1);
    hote_.ActivePour(0);
    hote_.ActivePour(1);
    hote_.RompsLienCorrecteur();
    hote_.RompsLienTexteur();
    hote_.Suspends();
    hote_.DonneCheminDocument();
    hote_.DonneTitreDocument();
    hote_.PermetsRetourDeCharriot();
    hote_.SynchronisePositions(zones);
    hote_.DonneContexte(&debut, &fin);
    hote_.AjusteSelectionPourOutils(1, 2);
    hote_.RemplaceEtReselectionne(U(u"mot"));
    EXPECT_EQ(Appels{}, appelsNotes::Prends());
}

} // namespace
