// SPDX-License-Identifier: MPL-2.0
// The plug-in's own door over a bus: what the creation of an agent asks, and when it answers none.
#include "InfosApplication.h"
#include "InterfaceAgentTexteur.h"
#include "outils/AlertesNotees.h"
#include "outils/bus/BureauDeTest.h"
#include "outils/bus/BusPrive.h"

#include <gtest/gtest.h>

#include <chrono>
#include <dlfcn.h>
#include <memory>
#include <stdexcept>

namespace {

UniChaine Uc(std::string const& texte) {
    return UniChaine::DepuisUtf8(texte);
}

/// The library, for as long as this lives.
class Greffon {
  public:
    Greffon()
        : bibliotheque_(dlopen(CHEMIN_GREFFON, RTLD_NOW | RTLD_LOCAL)) {
        if (bibliotheque_ == nullptr) {
            throw std::runtime_error(dlerror());
        }
    }
    ~Greffon() { dlclose(bibliotheque_); }
    Greffon(Greffon const&) = delete;
    Greffon& operator=(Greffon const&) = delete;

    std::unique_ptr<InterfaceAgentTexteur> Cree(char const* classe, std::string const& id) const {
        using Creation = InterfaceAgentTexteur* (*)(InfosApplication const*, UniChaine const*);
        auto const cree = reinterpret_cast<Creation>(dlsym(bibliotheque_, "CreeAgentTexteur"));
        InfosApplication infos;
        infos.Classe = Uc("VCLSalFrame:OpenOffice.org 4.0");
        infos.ClasseInitialisation = Uc(classe);
        auto const identifiant = Uc(id);
        return std::unique_ptr<InterfaceAgentTexteur>(cree(&infos, &identifiant));
    }

  private:
    void* bibliotheque_;
};

class AgentCreationOverABus : public testing::Test {
  protected:
    BusPrive bus;
    Greffon greffon; // before anything that would make a Qt application of its own
    AlertesNotees alertes;
    BureauDeTest bureau{{"lettre.txt", "Les chat dort.\n"}};
};

} // namespace

TEST_F(AgentCreationOverABus, AsksTheCompanionOnceAndGivesAnAgentThatReadsTheDocument) {
    auto const agent = greffon.Cree("VCLSalFrame:OpenOffice.org 4.0", bureau.Identifiant());
    ASSERT_NE(agent, nullptr);
    EXPECT_EQ(bureau.DonneCommande().DonneMethodes(), "InitialiseTexteur");
    EXPECT_EQ(agent->DonneTitreDocument().VersUtf8(), "lettre.txt");
    EXPECT_TRUE(alertes.Donne().empty());
}

TEST_F(AgentCreationOverABus, WithoutACompanionGivesNoneAtOnceAndSaysNothing) {
    auto const depart = std::chrono::steady_clock::now();
    EXPECT_EQ(greffon.Cree("VCLSalFrame:OpenOffice.org 4.0", "personne~doc1"), nullptr);
    // Far below the four minutes that a companion that is there may take.
    EXPECT_LT(std::chrono::steady_clock::now() - depart, std::chrono::seconds(15));
    EXPECT_TRUE(alertes.Donne().empty());
}

TEST_F(AgentCreationOverABus, AnIdentifierThatTheBusWouldChangeGivesNoneAndSendsNothing) {
    auto const identifiant = bureau.Identifiant() + std::string("\0c", 2);
    EXPECT_EQ(greffon.Cree("VCLSalFrame:OpenOffice.org 4.0", identifiant), nullptr);
    EXPECT_EQ(bureau.DonneCommande().DonneMethodes(), "");
    EXPECT_EQ(bureau.DonneCommande().DonneNombreAppelants(), 0);
    EXPECT_TRUE(alertes.Donne().empty());
}

TEST_F(AgentCreationOverABus, ACompanionThatRefusesGivesNone) {
    bureau.DonneCommande().Deregle("InitialiseTexteur", "erreur", "true");
    EXPECT_EQ(greffon.Cree("VCLSalFrame:OpenOffice.org 4.0", bureau.Identifiant()), nullptr);
    EXPECT_TRUE(alertes.Donne().empty());
}

TEST_F(AgentCreationOverABus, ForAnOldOpenOfficeGivesNoneSaysWhyOnceAndSendsNothing) {
    EXPECT_EQ(greffon.Cree("VCLSalFrame:OpenOffice.org 3.0", bureau.Identifiant()), nullptr);
    ASSERT_EQ(alertes.Donne().size(), 1U);
    auto const& alerte = alertes.Donne()[0];
    EXPECT_EQ(alerte.parent, nullptr);
    EXPECT_EQ(alerte.info.DonneGenre(), DAlerteInfo::kAvertissement);
    EXPECT_EQ(alerte.info.DonneTexte().VersUtf8(), "LibreOffice extension");
    EXPECT_FALSE(alerte.info.DonneInformation().EstVide());
    EXPECT_EQ(bureau.DonneCommande().DonneMethodes(), "");
    EXPECT_EQ(bureau.DonneCommande().DonneNombreAppelants(), 0);
}
