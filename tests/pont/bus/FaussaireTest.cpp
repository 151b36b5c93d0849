// SPDX-License-Identifier: MPL-2.0
// Any process of the user can answer a call that another was asked: the number is all it takes.
#include "outils/bus/Faussaire.h"
#include "AgentDeTest.h"
#include "outils/Repetitions.h"
#include "outils/bus/BureauDeTest.h"
#include "outils/bus/BusPrive.h"
#include "outils/bus/LienBus.h"

#include <QDBusConnectionInterface>

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <thread>

namespace {

/// Waits until the name has an owner, or has none.
void AttendsNom(QDBusConnection const& bus, QString const& service, bool possede) {
    auto const echeance = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    while (bus.interface()->isServiceRegistered(service).value() != possede) {
        ASSERT_LT(std::chrono::steady_clock::now(), echeance) << service.toStdString();
        std::this_thread::yield();
    }
}

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

TEST_F(BridgeAndAForger, AFormerOwnerOfTheNameIsNotBelievedAnyMore) {
    auto const service = QStringLiteral("com.ombrel.vocalyne.texteurs.OpenOffice.place");
    LienBus const temoin(service, QStringLiteral("/"), QString());
    AgentDeTest invite("place~doc1");
    Faussaire faussaire(bus.Adresse(), "DonneTitreDocument", Faussaire::Reponse::Texte);
    faussaire.PrendsLeNom(service.toStdString());
    AttendsNom(temoin.Connexion(), service, true);
    EXPECT_EQ(S(invite.DonneTitreDocument()), "forged") << "it is the companion now";
    EXPECT_EQ(S(invite.DonneTitreDocument()), "forged");

    faussaire.LaisseLeNom(service.toStdString());
    AttendsNom(temoin.Connexion(), service, false);
    int const fois = Repetitions(100, 100'000);
    int const avant = faussaire.DonneNombre();
    // Whoever has the name now says nothing: another forger, of a method that nobody calls. The bus
    // allows a connection 50,000 calls that nobody has answered, so there are several in turn.
    constexpr int kParMuet = 25'000;
    for (int reste = fois; reste > 0; reste -= kParMuet) {
        Faussaire muet(bus.Adresse(), "Rien", Faussaire::Reponse::Vrai);
        muet.PrendsLeNom(service.toStdString());
        AttendsNom(temoin.Connexion(), service, true);
        for (int i = 0; i < std::min(reste, kParMuet); ++i) {
            EXPECT_EQ(S(invite.DonneTitreDocument()), "") << reste - i;
        }
        muet.LaisseLeNom(service.toStdString());
        AttendsNom(temoin.Connexion(), service, false);
    }
    EXPECT_EQ(faussaire.DonneNombre() - avant, fois);
}

TEST_F(BridgeAndAForger, ANameThatComesBackToItsFirstOwnerIsItsAgain) {
    auto const service = QStringLiteral("com.ombrel.vocalyne.texteurs.OpenOffice.place");
    LienBus const temoin(service, QStringLiteral("/"), QString());
    AgentDeTest invite("place~doc1");
    Faussaire compagnon(bus.Adresse(), "DonneTitreDocument", Faussaire::Reponse::Texte);
    for (int tour = 0; tour < 3; ++tour) {
        compagnon.PrendsLeNom(service.toStdString());
        AttendsNom(temoin.Connexion(), service, true);
        EXPECT_EQ(S(invite.DonneTitreDocument()), "forged") << tour;
        compagnon.LaisseLeNom(service.toStdString());
        AttendsNom(temoin.Connexion(), service, false);
        EXPECT_EQ(S(invite.DonneTitreDocument()), "") << tour;
    }
}
