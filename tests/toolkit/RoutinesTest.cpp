// SPDX-License-Identifier: MPL-2.0
#include "RoutinesAgentTexteur.h"

#include "ConnecteurEssai.h"

#include <gtest/gtest.h>

#include <climits>
#include <optional>

namespace {

TEST(ZoneBoundaries, TheDefaultGivesTheFirstBoundaryBeyondThePosition) {
    ConnecteurMuet connecteur;
    EXPECT_EQ(-1, connecteur.DonneFinZone(0));
    EXPECT_EQ(-1, connecteur.DonneFinZone(INT_MAX));
    connecteur.Bornes() = {3, 7, 12};
    struct Cas {
        int position, fin;
    };
    for (auto const& c : {Cas{INT_MIN, 3},
                          {-1, 3},
                          {0, 3},
                          {2, 3},
                          {3, 7},
                          {6, 7},
                          {7, 12},
                          {11, 12},
                          {12, 12},
                          {100, 12},
                          {INT_MAX, 12}}) {
        EXPECT_EQ(c.fin, connecteur.DonneFinZone(c.position)) << c.position;
    }
}

struct CasBornes {
    int position, fin, longueur, debut;
};

TEST(ZoneBoundaries, AreTheStartAndLengthOfTheZoneThatHoldsThePosition) {
    CasBornes const cas[] = {
        {0, 12, 3, 0},   {2, 12, 3, 0},  {3, 12, 4, 3},  {6, 12, 4, 3},
        {7, 12, 5, 7},   {11, 12, 5, 7}, {12, 12, 5, 7}, // the end of the text: the zone before it
        {3, 3, 3, 0},                                    // an end anywhere steps back as well
        {100, 12, 5, 7}, {-5, 12, 3, 0},
    };
    ConnecteurMuet connecteur;
    connecteur.Bornes() = {3, 7, 12};
    for (auto const& c : cas) {
        int longueur = -9;
        int debut = -9;
        DonneBornesZone(connecteur, c.position, c.fin, longueur, debut);
        EXPECT_EQ(c.longueur, longueur) << c.position << ", " << c.fin;
        EXPECT_EQ(c.debut, debut) << c.position << ", " << c.fin;
    }
}

TEST(ZoneBoundaries, WithoutBoundariesTheLengthIsTheConnectorsAnswer) {
    ConnecteurMuet connecteur;
    int longueur = -9;
    int debut = -9;
    DonneBornesZone(connecteur, 4, 10, longueur, debut);
    EXPECT_EQ(-1, longueur);
    EXPECT_EQ(0, debut);
}

TEST(ZoneBoundaries, ASingleZoneStartsAtZero) {
    ConnecteurMuet connecteur;
    connecteur.Bornes() = {10};
    int longueur = 0;
    int debut = -9;
    DonneBornesZone(connecteur, 4, 10, longueur, debut);
    EXPECT_EQ(10, longueur);
    EXPECT_EQ(0, debut);
}

TEST(ZoneBoundaries, AConnectorWithoutSenseNeitherHangsNorOverflows) {
    ConnecteurEssai connecteur;
    int longueur = 0;
    int debut = 0;
    connecteur.finZone = [](int position) { return position == 0 ? -2 : INT_MAX; };
    DonneBornesZone(connecteur, INT_MIN, INT_MIN, longueur, debut);
    connecteur.finZone = [](int position) { return position == 5 ? 9 : 2; }; // never advances
    DonneBornesZone(connecteur, 5, 10, longueur, debut);
    EXPECT_EQ(2, debut);
    EXPECT_EQ(7, longueur);
    connecteur.finZone = [](int position) { return position > 0 ? INT_MIN : INT_MAX; };
    DonneBornesZone(connecteur, 5, 10, longueur, debut);
    EXPECT_EQ(0, debut);
    EXPECT_EQ(INT_MIN, longueur);
}

TEST(ZoneBoundaries, BothOutsAreZeroWhenTheConnectorThrows) {
    ConnecteurEssai connecteur;
    connecteur.finZone = [](int) -> int { Echoue(); };
    int longueur = 5;
    int debut = 6;
    EXPECT_ANY_THROW(DonneBornesZone(connecteur, 1, 2, longueur, debut));
    EXPECT_EQ(0, longueur);
    EXPECT_EQ(0, debut);
}

struct CasFin {
    int a, b, c;
    bool attendu;
};

TEST(ZoneEnd, IsTruePastTheTextOrWhereThreeEqualPositionsEndAZone) {
    CasFin const cas[] = {
        {3, 3, 3, true},
        {7, 7, 7, true},
        {12, 12, 12, true},
        {4, 4, 4, false},
        {13, 13, 13, true}, // the text is shorter than b
        {0, 13, 99, true},  // whatever the others
        {INT_MIN, INT_MAX, 0, true},
        {3, 3, 4, false},
        {2, 3, 3, false},
        {0, 0, 0, false},
        {-1, -1, -1, false},
        {INT_MIN, INT_MIN, INT_MIN, false},
    };
    ConnecteurEssai connecteur(u"0123456789ab");
    connecteur.Bornes() = {3, 7, 12};
    for (auto const& c : cas) {
        EXPECT_EQ(c.attendu, EstFinDeZone(connecteur, c.a, c.b, c.c))
            << c.a << ", " << c.b << ", " << c.c;
    }
}

struct CasVersion {
    char16_t const* premiere;
    char16_t const* seconde;
    bool attendu;
};

TEST(VersionHundreds, MatchWhenTheSecondLiesInTheHundredOfTheFirst) {
    CasVersion const cas[] = {
        {u"903", u"950", true},
        {u"903", u"1003", false},
        {u"950", u"903", true},
        {u"900", u"999", true},
        {u"900", u"899", false},
        {u"999", u"1000", false},
        {u"0", u"99", true},
        {u"0", u"100", false},
        {u"", u"", true},
        {u"", u"50", true},
        {u"abc", u"12x", true}, // neither is a number: both are 0
        {u"abc", u"100", false},
        {u"9.03", u"99", true}, // no integer either
        {u"-1", u"-100", true}, // [-100, -1]
        {u"-1", u"0", false},
        {u"-100", u"-1", true},
        {u"-101", u"-100", false},
        {u"2147483647", u"2147483600", true},
        {u"2147483600", u"2147483647", true},
        {u"-2147483648", u"-2147483647", true},
        {u"99999999999", u"5", true}, // past 32 bits: not a number
    };
    for (auto const& c : cas) {
        EXPECT_EQ(c.attendu, EstMemeCentaineVersion(U(c.premiere), U(c.seconde)))
            << testing::PrintToString(U(c.premiere)) << testing::PrintToString(U(c.seconde));
    }
}

class AgentInitialise : public ConnecteurMuet {
  public:
    AgentInitialise()
        : InterfaceTexteur(UniChaine()) {}
    bool InitialiseTexteur(UniChaine const& classe, UniChaine& message, int mode) override {
        EXPECT_TRUE(message.EstVide());
        message = U(u"nobody reads this");
        recueClasse = classe;
        recuMode = mode;
        return reponse;
    }
    std::optional<UniChaine> recueClasse;
    std::optional<int> recuMode;
    bool reponse = true;
};

TEST(InitialisationFromTheRecord, ANullAgentIsRefused) {
    EXPECT_FALSE(InitialiseAgentSelonInfos(nullptr, InfosApplication()));
}

TEST(InitialisationFromTheRecord, TurnsTheKindOfRequestIntoAMode) {
    struct Cas {
        int genre, mode;
    };
    for (auto const& c :
         {Cas{1, 0}, {2, 1}, {3, 2}, {0, 3}, {4, 3}, {-1, 3}, {INT_MIN, 3}, {INT_MAX, 3}}) {
        AgentInitialise agent;
        InfosApplication infos;
        infos.Genre = c.genre;
        EXPECT_TRUE(InitialiseAgentSelonInfos(&agent, infos));
        EXPECT_EQ(c.mode, agent.recuMode) << c.genre;
    }
}

TEST(InitialisationFromTheRecord, HandsOverTheInitialisationClassAndNoOtherField) {
    AgentInitialise agent;
    InfosApplication infos;
    infos.Application = U(u"1");
    infos.Id = U(u"2");
    infos.ClasseInitialisation = U(u"the class");
    infos.NoVersion = U(u"4");
    infos.Classe = U(u"7");
    InitialiseAgentSelonInfos(&agent, infos);
    EXPECT_EQ(U(u"the class"), agent.recueClasse);
}

TEST(InitialisationFromTheRecord, AnswersWhatTheAgentAnswers) {
    AgentInitialise agent;
    agent.reponse = false;
    EXPECT_FALSE(InitialiseAgentSelonInfos(&agent, InfosApplication()));
    ConnecteurMuet muet;
    EXPECT_TRUE(InitialiseAgentSelonInfos(&muet, InfosApplication()));
}

} // namespace
