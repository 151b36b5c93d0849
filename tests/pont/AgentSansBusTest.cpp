// SPDX-License-Identifier: MPL-2.0
// The agent where no bus can be reached, or where its identifier gives names that no bus can have:
// neutral answers, at once.
#include "AgentEssai.h"
#include "VocalyneOpenOfficeProxyQDBUS.h"
#include "ZoneDeTexteOOoProxy.h"
#include "outils/AlertesNotees.h"
#include "outils/Textes.h"

#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <string>
#include <vector>

namespace {

std::vector<UniChaine> Identificateurs() {
    return {U(u"essai~doc"), U(u"7~doc3"),  U(u"~doc"),    U(u""),
            U(u"~"),         U(u"essai"),   U(u"a b~doc"), U(u"é~doc"),
            U(u"a..b~doc"),  U(u"a/b~doc"), U(u"a-b~doc"), U(std::u16string(300, u'a')),
            U(u"a\n~doc"),   U(u"%s~%n")};
}

TEST(AgentWithoutABus, GivesEachNeutralAnswerAtOnceWhateverItsIdentifier) {
    AlertesNotees const alertes;
    for (auto const& identificateur : Identificateurs()) {
        SCOPED_TRACE(testing::PrintToString(identificateur));
        auto const depart = std::chrono::steady_clock::now();
        AgentEssai agent(identificateur);
        InterfaceAgentTexteur& hote = agent;
        EXPECT_EQ(identificateur, agent.DonneIdentificateur());
        EXPECT_TRUE(hote.EstLie()) << "the proxy exists";

        UniChaine message;
        EXPECT_FALSE(hote.InitialiseTexteur(U(u"VCLSalFrame:OpenOffice.org 4.0"), message, 0));
        EXPECT_FALSE(hote.DocEstMort()) << "no answer reads as alive";
        EXPECT_TRUE(hote.DonneCheminDocument().EstVide());
        EXPECT_TRUE(hote.DonneTitreDocument().EstVide());
        EXPECT_FALSE(hote.PermetsRetourDeCharriot());
        CollectionZonesDeTexte zones;
        EXPECT_FALSE(hote.SynchronisePositions(zones));
        EXPECT_TRUE(zones.EstVide());
        int debut = 5;
        int fin = 6;
        EXPECT_TRUE(hote.DonneContexte(&debut, &fin).EstVide());
        EXPECT_EQ(0, debut);
        EXPECT_EQ(0, fin);
        EXPECT_EQ(0, hote.RemplaceEtReselectionne(U(u"mot"))) << "it could not be sent";
        EXPECT_EQ(0, hote.AjusteSelectionPourOutils(1, 2));
        for (int const mode : {0, 1, 2, 3, -1}) {
            hote.InitialisePour(mode);
            hote.ActivePour(mode);
        }
        hote.Suspends();
        hote.RompsLienCorrecteur();
        hote.RompsLienTexteur();
        // No wait ran to its time-out, the shortest of which is 1.5 s.
        EXPECT_LT(std::chrono::steady_clock::now() - depart, std::chrono::milliseconds(1400));
    }
    EXPECT_TRUE(alertes.Donne().empty());
}

TEST(AgentWithoutABus, PutsTheProxysTimeOutBackAfterTheTwoSpecialCalls) {
    AgentEssai agent(U(u"essai~doc"));
    UniChaine message;
    EXPECT_EQ(-1, agent.DonneProxy()->timeout()) << "the bus library's default";
    for (int const delai : {-1, 1234}) {
        agent.DonneProxy()->setTimeout(delai);
        agent.DocEstMort();
        EXPECT_EQ(delai, agent.DonneProxy()->timeout());
        agent.InitialiseTexteur(U(u"VCLSalFrame:OpenOffice.org 4.0"), message, 0);
        EXPECT_EQ(delai, agent.DonneProxy()->timeout());
    }
}

TEST(AgentWithoutABus, CorrectsAZonesOwnTextAndAnswersThatNothingWasSent) {
    AgentEssai agent(U(u"essai~doc"));
    ZoneDeTexteOOoProxy zone(agent.DonneProxy(), &agent, U(u"0123456789"), U(u"n"), 4, 5);
    EXPECT_FALSE(zone.CorrigeDansTexteur(3, 7, U(u"ab"), false));
    EXPECT_EQ(U(u"012ab789"), TexteDe(zone.DonneTexte()));
    EXPECT_FALSE(zone.PeutCorriger(0, 1, U(u"0")));
    EXPECT_FALSE(zone.SelectionneIntervalle(0, 1));
}

struct CasNoms {
    char16_t const* identificateur;
    char const* instance;
};

TEST(AgentNames, ComeFromTheInstancePartOfTheIdentifier) {
    for (auto const& c : {CasNoms{u"7~doc3", "7"},
                          {u"~doc", ""},
                          {u"essai~a~b", "essai"},
                          {u"without", "without"}}) {
        AgentEssai agent(U(c.identificateur));
        auto const instance = QString::fromLatin1(c.instance);
        EXPECT_EQ(QLatin1String("com.ombrel.vocalyne.texteurs.OpenOffice.") + instance,
                  agent.DonneProxy()->service());
        EXPECT_EQ(QLatin1String("/com/ombrel/vocalyne/texteurs/OpenOffice/") + instance,
                  agent.DonneProxy()->path());
        EXPECT_EQ(QLatin1String("com.ombrel.vocalyne.texteurs.openoffice.proxy.interface"),
                  agent.DonneProxy()->interface());
        EXPECT_EQ(nullptr, agent.DonneProxy()->parent());
    }
}

TEST(AgentConstants, AreThoseOfThisAgent) {
    AgentEssai agent(U(u"essai~doc"));
    InterfaceAgentTexteur& hote = agent;
    EXPECT_TRUE(hote.Capacite1());
    EXPECT_FALSE(hote.Capacite2());
    EXPECT_FALSE(hote.Capacite3());
    EXPECT_FALSE(hote.Capacite4());
    EXPECT_TRUE(hote.Capacite5());
    EXPECT_TRUE(hote.Capacite6());
    EXPECT_TRUE(hote.Capacite7());
    EXPECT_EQ(&hote, hote.DonneAgentTexteur());
    EXPECT_EQ(0, hote.Requete10());
    EXPECT_EQ(0, hote.Requete11());
    EXPECT_EQ(0, hote.Requete12());
    EXPECT_EQ(0, hote.Requete13());
    EXPECT_EQ(0, hote.Requete14());
    EXPECT_TRUE(hote.Requete17());
    EXPECT_TRUE(hote.Requete21()) << "the generic agent answers false";
    EXPECT_TRUE(hote.Requete30());
    EXPECT_TRUE(hote.Requete33());
    EXPECT_EQ(U(u"LibreOffice"), hote.DonneNomApplication()) << "also for OpenOffice.org windows";
    EXPECT_EQ(U(u"\n"), hote.DonneFinDeParagraphe());
    EXPECT_TRUE(hote.DonneChaineAgent7().EstVide());
    auto texte = A(u"abc");
    hote.TraiteTexteLu(texte);
    EXPECT_EQ(A(u"abc"), texte);
}

TEST(AgentInitialisation, TheOldWindowClassIsRefusedWithAnAlert) {
    AgentEssai agent(U(u"essai~doc"));
    AlertesNotees const alertes;
    UniChaine message;
    EXPECT_FALSE(agent.InitialiseTexteur(U(u"VCLSalFrame:OpenOffice.org 3.0"), message, 0));
    ASSERT_EQ(1U, alertes.Donne().size());
    auto const& alerte = alertes.Donne()[0];
    EXPECT_EQ(nullptr, alerte.parent);
    EXPECT_EQ(4, alerte.info.DonneGenre());
    EXPECT_EQ(U(u"Extension LibreOffice"), alerte.info.DonneTexte());
    EXPECT_EQ(U(u"Le connecteur d'Vocalyne pour ce logiciel ne semble pas installé, ou n'est pas à "
                u"jour ; ce connecteur est requis."),
              alerte.info.DonneInformation());
    EXPECT_TRUE(alerte.info.DonneDetails().EstVide());
    EXPECT_TRUE(message.EstVide());
}

TEST(AgentInitialisation, OnlyTheExactOldClassIsRefusedWithAnAlert) {
    AgentEssai agent(U(u"essai~doc"));
    AlertesNotees const alertes;
    UniChaine message;
    for (auto const* classe :
         {u"", u"VCLSalFrame:OpenOffice.org 3.0 ", u"OpenOffice.org 3.0",
          u"vclsalframe:openoffice.org 3.0", u"VCLSalFrame:OpenOffice.org 3"}) {
        EXPECT_FALSE(agent.InitialiseTexteur(U(classe), message, 0)); // there is no bus
    }
    EXPECT_TRUE(alertes.Donne().empty());
}

} // namespace
