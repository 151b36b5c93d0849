// SPDX-License-Identifier: MPL-2.0
// The alerts as a person reads them, through the plug-in's own catalogs, in both languages.
#include "AlertesConnecteur.h"
#include "Catalogues.h"
#include "InitialisationGenerale.h"
#include "ModuleProxyOOo.h"
#include "domaineTexteur.h"
#include "outils/AlertesNotees.h"
#include "outils/Textes.h"

#include <gtest/gtest.h>

namespace {

/// Has the module load its catalog for a language, as if it were loaded anew.
void Parle(eLangue langue) {
    InitialisationGenerale::InitLePlusTotPossible(langue);
    domaineTexteur = nullptr;
    ChargeDomaineTexteur();
}

template <class Montre>
DAlerteInfo AlerteDe(Montre montre) {
    AlertesNotees alertes;
    montre();
    EXPECT_EQ(1U, alertes.Donne().size());
    EXPECT_EQ(4, alertes.Donne().at(0).info.DonneGenre());
    EXPECT_TRUE(alertes.Donne().at(0).info.DonneDetails().EstVide());
    return alertes.Donne().at(0).info;
}

DAlerteInfo AlerteDeLAncienneClasse() {
    return AlerteDe([] {
        ModuleProxyOOo agent(U(u"inst~doc"));
        UniChaine message;
        EXPECT_FALSE(agent.InitialiseTexteur(U(u"VCLSalFrame:OpenOffice.org 3.0"), message, 0));
    });
}

TEST(AlertsInEnglish, AskForAnUpdateOfTheHost) {
    Parle(kLangueAnglais);
    auto const info = AlerteDe([] { AlerteMiseAJourVocalyneRequise(U(u"Writer")); });
    EXPECT_EQ(U(u"The request cannot be completed"), info.DonneTexte());
    EXPECT_EQ(U(u"To integrate with Writer, Vocalyne must be updated.\n\nTo check available "
                u"updates, please select “Search for updates” from Vocalyne’s Help menu."),
              info.DonneInformation());
}

TEST(AlertsInEnglish, SayThatTheConnectorIsNotUpToDate) {
    Parle(kLangueAnglais);
    auto const info = AlerteDe([] { AlerteConnecteurPasAJour({}, U(u"Writer")); });
    EXPECT_EQ(U(u"The Vocalyne connector for Writer is not up to date."), info.DonneTexte());
    EXPECT_NE(-1, Trouve(info.DonneInformation(), u"connector installer"));
}

TEST(AlertsInEnglish, SayThatACallIsImpossible) {
    Parle(kLangueAnglais);
    auto const info = AlerteDe([] { AlerteAppelImpossible(U(u"Writer")); });
    EXPECT_EQ(U(u"Vocalyne cannot be run from the Vocalyne Agent in Writer."), info.DonneTexte());
    EXPECT_EQ(U(u"To use Vocalyne in this software, please see the document entitled “Using with "
                u"your other software” (available in Vocalyne’s Help menu)."),
              info.DonneInformation());
}

TEST(AlertsInEnglish, SayThatAConnectorIsRequired) {
    Parle(kLangueAnglais);
    auto const info = AlerteDe([] { AlerteConnecteurRequis(U(u"Writer")); });
    EXPECT_EQ(U(u"For Vocalyne to be run from the Vocalyne Agent in Writer, a connector must be "
                u"installed."),
              info.DonneTexte());
    EXPECT_EQ(AlerteDe([] { AlerteAppelImpossible(U(u"Writer")); }).DonneInformation(),
              info.DonneInformation());
}

TEST(AlertsInEnglish, SayThatTheOfficesExtensionIsMissing) {
    Parle(kLangueAnglais);
    auto const info = AlerteDeLAncienneClasse();
    EXPECT_EQ(U(u"LibreOffice extension"), info.DonneTexte());
    EXPECT_EQ(U(u"The Vocalyne connector for this software does not seem to be installed, or is "
                u"not up to date; this connector is required."),
              info.DonneInformation());
}

TEST(AlertsInFrench, AreTheMessagesOwnTexts) {
    Parle(kLangueFrancais);
    EXPECT_EQ(U(u":/fichiers/TexteurFr.mo"), domaineTexteur->second) << "from the catalog";
    auto const info = AlerteDe([] { AlerteMiseAJourVocalyneRequise(U(u"Writer")); });
    EXPECT_EQ(U(u"Impossible d’effectuer la requête"), info.DonneTexte());
    EXPECT_EQ(U(u"L’intégration à Writer requiert une mise à jour d’Vocalyne.\n\nPour vérifier les "
                u"mises à jour offertes, veuillez sélectionner «\u00A0Recherche de mise à "
                u"jour\u00A0» dans le menu Aide d’Vocalyne."),
              info.DonneInformation());
    EXPECT_EQ(U(u"Extension LibreOffice"), AlerteDeLAncienneClasse().DonneTexte());
}

TEST(AlertsInBothLanguages, NameTheApplicationOnce) {
    for (auto const langue : {kLangueAnglais, kLangueFrancais}) {
        Parle(langue);
        for (auto const alerte : {+[] { AlerteMiseAJourVocalyneRequise(U(u"#nom#")); },
                                  +[] { AlerteConnecteurPasAJour(U(u"#nom#"), U(u"#nom#")); },
                                  +[] { AlerteAppelImpossible(U(u"#nom#")); },
                                  +[] { AlerteConnecteurRequis(U(u"#nom#")); }}) {
            auto const info = AlerteDe(alerte);
            auto tout = info.DonneTexte();
            tout.Ajoute(info.DonneInformation());
            auto const place = Trouve(tout, u"#nom#");
            EXPECT_NE(-1, place);
            EXPECT_EQ(-1, Trouve(tout, u"#nom#", place + 1));
            EXPECT_EQ(-1, Trouve(tout, u"{"));
        }
    }
}

TEST(AlertsInBothLanguages, AreInTheLanguageThatTheModuleWasLoadedWith) {
    Parle(kLangueAnglais);
    InitialisationGenerale::InitLePlusTotPossible(kLangueFrancais); // a later change
    EXPECT_EQ(U(u"The request cannot be completed"),
              AlerteDe([] { AlerteMiseAJourVocalyneRequise({}); }).DonneTexte());
}

} // namespace
