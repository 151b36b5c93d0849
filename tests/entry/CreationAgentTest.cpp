// SPDX-License-Identifier: MPL-2.0
// The creation of an agent, on agents that count themselves.
#include "CreationAgent.h"

#include "outils/ConnecteurMuet.h"
#include "outils/Textes.h"

#include <gtest/gtest.h>

#include <climits>
#include <functional>
#include <optional>
#include <stdexcept>

namespace {

/// What the agents of one test did.
struct Journal {
    int constructions = 0;
    int destructions = 0;
    std::optional<int> mode;
    UniChaine identificateur;
    UniChaine classe;
};
Journal leJournal;

/// What the next agent does.
struct Conduite {
    std::function<void()> construction = [] {};
    std::function<bool()> initialisation = [] { return true; };
};
Conduite laConduite;

class AgentCompte : public ConnecteurMuet {
  public:
    explicit AgentCompte(UniChaine const& identificateur)
        : InterfaceTexteur(identificateur) {
        laConduite.construction();
        ++leJournal.constructions;
    }
    ~AgentCompte() override { ++leJournal.destructions; }

    bool InitialiseTexteur(UniChaine const& classe, UniChaine& message, int mode) override {
        EXPECT_TRUE(message.EstVide());
        leJournal.identificateur = DonneIdentificateur();
        leJournal.classe = classe;
        leJournal.mode = mode;
        return laConduite.initialisation();
    }
};

class AgentCreation : public testing::Test {
  protected:
    AgentCreation() {
        leJournal = {};
        laConduite = {};
        infos_.Classe = U(u"VCLSalFrame:OpenOffice.org 4.0");
        infos_.ClasseInitialisation = U(u"class of initialisation");
        infos_.Genre = 1;
    }
    std::unique_ptr<AgentCompte> Cree(UniChaine const& identificateur = U(u"a~b")) {
        return CreeAgentInitialise<AgentCompte>(infos_, identificateur);
    }
    InfosApplication infos_;
};

TEST_F(AgentCreation, HandsOverAnInitialisedAgent) {
    auto agent = Cree();
    ASSERT_NE(nullptr, agent);
    EXPECT_EQ(1, leJournal.constructions);
    EXPECT_EQ(0, leJournal.destructions);
    EXPECT_EQ(U(u"a~b"), leJournal.identificateur);
    EXPECT_EQ(U(u"class of initialisation"), leJournal.classe);
    delete static_cast<InterfaceAgentTexteur*>(agent.release()); // as the host does
    EXPECT_EQ(1, leJournal.destructions);
}

TEST_F(AgentCreation, MakesNoneForAnEmptyIdentifier) {
    EXPECT_EQ(nullptr, Cree(UniChaine()));
    EXPECT_EQ(0, leJournal.constructions);
}

TEST_F(AgentCreation, MakesNoneForAWindowThatIsNotServed) {
    for (auto const* classe : {u"", u"other", u"VCLSalFrame:OpenOffice.org 4.0 "}) {
        infos_.Classe = U(classe);
        EXPECT_EQ(nullptr, Cree());
        EXPECT_EQ(nullptr, Cree(UniChaine()));
    }
    EXPECT_EQ(0, leJournal.constructions);
}

TEST_F(AgentCreation, MakesOneForEachOfTheTwoWindowClasses) {
    EXPECT_NE(nullptr, Cree());
    infos_.Classe = U(u"VCLSalFrame:OpenOffice.org 3.0");
    EXPECT_NE(nullptr, Cree());
}

TEST_F(AgentCreation, DestroysOnceAnAgentThatRefusesItsInitialisation) {
    laConduite.initialisation = [] { return false; };
    EXPECT_EQ(nullptr, Cree());
    EXPECT_EQ(1, leJournal.constructions);
    EXPECT_EQ(1, leJournal.destructions);
}

TEST_F(AgentCreation, LetsWhatTheConstructorThrowsThrough) {
    laConduite.construction = [] { throw std::range_error("construction"); };
    EXPECT_THROW(Cree(), std::range_error);
    EXPECT_EQ(0, leJournal.constructions);
    EXPECT_EQ(0, leJournal.destructions);
}

TEST_F(AgentCreation, DestroysOnceAnAgentWhoseInitialisationThrowsAndLetsThatThrough) {
    laConduite.initialisation = []() -> bool { throw std::range_error("initialisation"); };
    try {
        Cree();
        ADD_FAILURE() << "nothing was thrown";
    } catch (std::range_error const& erreur) {
        EXPECT_STREQ("initialisation", erreur.what());
    }
    EXPECT_EQ(1, leJournal.constructions);
    EXPECT_EQ(1, leJournal.destructions);
}

TEST_F(AgentCreation, HandsTheKindOfRequestOverAsAMode) {
    struct Cas {
        int genre, mode;
    };
    for (auto const& c :
         {Cas{1, 0}, {2, 1}, {3, 2}, {0, 3}, {4, 3}, {-1, 3}, {INT_MIN, 3}, {INT_MAX, 3}}) {
        infos_.Genre = c.genre;
        EXPECT_NE(nullptr, Cree());
        EXPECT_EQ(c.mode, leJournal.mode) << c.genre;
    }
}

TEST_F(AgentCreation, AnIdentifierOfABlankIsAnIdentifier) {
    EXPECT_NE(nullptr, Cree(U(u" ")));
    EXPECT_NE(nullptr, Cree(UniChaine(u"\0", 1)));
}

} // namespace
