// SPDX-License-Identifier: MPL-2.0
#include "outils/ConnecteurMuet.h"
#include "outils/Textes.h"

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

namespace {

/// A word processor that is no agent.
class TexteurSeul : public InterfaceTexteur {
  public:
    using InterfaceTexteur::InterfaceTexteur;
    bool Capacite1() override { return true; }
    bool Capacite2() override { return true; }
    bool Capacite3() override { return true; }
    bool Capacite4() override { return true; }
    bool Capacite5() override { return true; }
    bool Capacite6() override { return true; }
    bool Capacite7() override { return true; }
};

class ZoneMuette : public InterfaceZoneDeTexte {
  public:
    bool AccepteIntervalles(int /*d1*/, int /*f1*/, int /*d2*/, int /*f2*/) override {
        return false;
    }
    bool CorrigeDansTexteur(int /*d*/, int /*f*/, UniChaine const& /*t*/, bool /*d2*/) override {
        return false;
    }
    int DonneDebutSelection() override { return 0; }
    int DonneFinSelection() override { return 0; }
    UniChaine DonneChaineAuxiliaire() override { return {}; }
    TexteAvecAttributs DonneTexte() override { return {}; }
    int DonneLongueur() override { return 0; }
    bool PeutCorriger(int /*d*/, int /*f*/, UniChaine const& /*t*/) override { return false; }
    void AjusteIntervalle(int /*d*/, int /*f*/, int* /*a*/, int* /*b*/, bool /*d2*/) override {}
    bool SelectionneIntervalle(int /*d*/, int /*f*/) override { return false; }
};

TEST(InterfaceTexteur, OneThatIsNoAgentHasNoAgent) {
    TexteurSeul texteur(U(u"a~b"));
    EXPECT_EQ(nullptr, texteur.DonneAgentTexteur());
}

TEST(InterfaceTexteur, ReservedQuestionsAnswerZeroUntilAConnectorAnswersOtherwise) {
    TexteurSeul texteur(U(u"a~b"));
    EXPECT_EQ(0, texteur.Requete10());
    EXPECT_EQ(0, texteur.Requete11());
    EXPECT_EQ(0, texteur.Requete12());

    ConnecteurMuet agent;
    EXPECT_EQ(0, agent.Requete10());
    EXPECT_EQ(0, agent.Requete11());
    EXPECT_EQ(0, agent.Requete12());
    EXPECT_EQ(0, agent.Requete13());
}

TEST(InterfaceTexteur, KeepsACopyOfTheIdentifierAndStartsInStateZero) {
    auto identificateur = U(u"instance~document");
    TexteurSeul texteur(identificateur);
    identificateur = UniChaine();
    EXPECT_EQ(U(u"instance~document"), texteur.DonneIdentificateur());
    EXPECT_EQ(0, texteur.DonneEtat());
}

TEST(InterfaceTexteur, TheMostDerivedClassGivesTheIdentifier) {
    ConnecteurMuet agent(U(u"a~b"));
    EXPECT_EQ(U(u"a~b"), static_cast<InterfaceTexteur&>(agent).DonneIdentificateur());
    EXPECT_EQ(0, agent.DonneEtat());
}

TEST(InterfaceAgentTexteur, AnAgentAnswersItselfThroughBothBases) {
    ConnecteurMuet agent;
    InterfaceAgentTexteur* const parAgent = &agent;
    InterfaceTexteur* const parTexteur = &agent;
    EXPECT_EQ(parAgent, parAgent->DonneAgentTexteur());
    EXPECT_EQ(parAgent, parTexteur->DonneAgentTexteur());
    EXPECT_EQ(parTexteur, static_cast<InterfaceTexteur*>(parTexteur->DonneAgentTexteur()));
}

TEST(InterfaceAgentTexteur, IsDeletedWholeThroughItsOwnDestructor) {
    class Temoin : public ConnecteurMuet {
      public:
        explicit Temoin(int& compte)
            : InterfaceTexteur(UniChaine())
            , compte_(compte) {}
        ~Temoin() override { ++compte_; }

      private:
        int& compte_;
    };
    int compte = 0;
    delete static_cast<InterfaceAgentTexteur*>(new Temoin(compte));
    EXPECT_EQ(1, compte);
    delete static_cast<InterfaceTexteur*>(new Temoin(compte));
    EXPECT_EQ(2, compte);
}

TEST(InterfaceAgentTexteur, HoldsOneTexteurHoweverManyToolkitClassesLieBetween) {
    // Were the inheritance not virtual, these conversions would be ambiguous.
    static_assert(std::is_convertible_v<ConnecteurMuet*, InterfaceTexteur*>);
    static_assert(std::is_convertible_v<ConnecteurMuet*, InterfaceAgentTexteur*>);
    // A virtual base cannot be cast back statically: dynamic_cast is the only way down.
    ConnecteurMuet agent;
    InterfaceTexteur* const texteur = &agent;
    EXPECT_EQ(&agent, dynamic_cast<ConnecteurMuet*>(texteur));
}

TEST(InterfaceZoneDeTexte, AZoneIsNotMarkedUnlessItsConnectorSaysSo) {
    class ZoneMarquee : public ZoneMuette {
      public:
        bool EstMarquee() override { return true; }
    };
    ZoneMuette muette;
    ZoneMarquee marquee;
    EXPECT_FALSE(static_cast<InterfaceZoneDeTexte&>(muette).EstMarquee());
    EXPECT_TRUE(static_cast<InterfaceZoneDeTexte&>(marquee).EstMarquee());
}

TEST(InterfaceZoneDeTexte, InterfacesAreAbstractAndNeverCopied) {
    static_assert(std::is_abstract_v<InterfaceTexteur>);
    static_assert(std::is_abstract_v<InterfaceAgentTexteur>);
    static_assert(std::is_abstract_v<InterfaceZoneDeTexte>);
    static_assert(std::is_abstract_v<ImplAgentTexteur>);
    static_assert(!std::is_copy_constructible_v<TexteurSeul>);
    static_assert(!std::is_copy_constructible_v<ZoneMuette>);
    static_assert(std::has_virtual_destructor_v<InterfaceTexteur>);
    static_assert(std::has_virtual_destructor_v<InterfaceAgentTexteur>);
    static_assert(std::has_virtual_destructor_v<InterfaceZoneDeTexte>);
    SUCCEED();
}

} // namespace
