// SPDX-License-Identifier: MPL-2.0
// Any process of the user can answer a call that another was asked: the number is all it takes.
#include "Faussaire.h"
#include "AgentDeTest.h"
#include "outils/bus/BureauDeTest.h"
#include "outils/bus/BusPrive.h"

#include <gtest/gtest.h>

namespace {

class BridgeAndAForger : public testing::Test {
  protected:
    BusPrive bus;
    BureauDeTest bureau{{"lettre.txt", "Les chat dort.\n"}};
    AgentDeTest agent{bureau.Identifiant()};
};

} // namespace

TEST_F(BridgeAndAForger, QtTakesAForgedAnswerForTheCompanions) {
    Faussaire const faussaire(bus.Adresse(), "DonneTitreDocument", Faussaire::Reponse::Texte);
    bureau.DonneCommande().Deregle("DonneTitreDocument", "muet");
    auto appel = agent.DonneProxy()->DonneTitreDocument();
    appel.waitForFinished();
    EXPECT_TRUE(appel.isValid());
    EXPECT_EQ(appel.value().toStdString(), "forged");
}

TEST_F(BridgeAndAForger, AForgedTextReadsEmptyAndTheNextCallWorks) {
    ASSERT_TRUE(agent.Initialise());
    bureau.DonneCommande().Deregle("DonneTitreDocument", "muet");
    {
        Faussaire const faussaire(bus.Adresse(), "DonneTitreDocument", Faussaire::Reponse::Texte);
        EXPECT_EQ(S(agent.DonneTitreDocument()), "");
        EXPECT_EQ(S(agent.DonneTitreDocument()), "");
        EXPECT_EQ(faussaire.DonneNombre(), 2);
    }
    bureau.DonneCommande().Retablis();
    EXPECT_EQ(S(agent.DonneTitreDocument()), "lettre.txt");
}

TEST_F(BridgeAndAForger, AForgedYesIsNoYesEvenBeforeTheOwnerIsKnown) {
    bureau.DonneCommande().Deregle("DocEstMort", "muet");
    bureau.DonneCommande().Deregle("InitialiseTexteur", "muet");
    {
        Faussaire const mort(bus.Adresse(), "DocEstMort", Faussaire::Reponse::Vrai);
        Faussaire const contact(bus.Adresse(), "InitialiseTexteur", Faussaire::Reponse::Vrai);
        EXPECT_FALSE(agent.DocEstMort());
        EXPECT_FALSE(agent.Initialise());
        EXPECT_EQ(mort.DonneNombre(), 1);
        EXPECT_EQ(contact.DonneNombre(), 1);
    }
    bureau.DonneCommande().Retablis();
    EXPECT_TRUE(agent.Initialise());
}
