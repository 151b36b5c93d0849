// SPDX-License-Identifier: MPL-2.0
// Run on dbus-broker alone (CMakeLists.txt).
#include "AgentDeTest.h"
#include "VocalyneOpenOfficeProxyQDBUS.h"
#include "outils/Textes.h"
#include "outils/bus/BureauDeTest.h"
#include "outils/bus/BusPrive.h"
#include "outils/bus/CommandeBureau.h"
#include "outils/bus/Faussaire.h"

#include <gtest/gtest.h>

namespace {

TEST(ABusThatKnowsItsCalls, DeliversNoForgedAnswer) {
    BusPrive const bus;
    BureauDeTest bureau{{"lettre.txt", "Les chat dort.\n"}};
    AgentDeTest agent{bureau.Identifiant()};
    ASSERT_TRUE(agent.Initialise());
    Faussaire const faussaire(bus.Adresse(), "DonneTitreDocument", Faussaire::Reponse::Texte);
    bureau.DonneCommande().Deregle("DonneTitreDocument", "muet");
    agent.DonneProxy()->setTimeout(500);
    auto appel = agent.DonneProxy()->DonneTitreDocument();
    appel.waitForFinished();
    EXPECT_EQ(faussaire.DonneNombre(), 1);
    EXPECT_TRUE(appel.isError());
    bureau.DonneCommande().Retablis();
    EXPECT_EQ(S(agent.DonneTitreDocument()), "lettre.txt");
}

} // namespace
