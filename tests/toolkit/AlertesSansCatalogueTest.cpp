// SPDX-License-Identifier: MPL-2.0
// The toolkit's alerts where no catalog was loaded: the messages' own French text.
#include "AlertesConnecteur.h"

#include "domaineTexteur.h"
#include "outils/AlertesNotees.h"
#include "outils/Textes.h"

#include <gtest/gtest.h>

// A connector defines it; this one never loads a catalog.
DomaineDeTraduction* domaineTexteur = nullptr;

namespace {

constexpr char16_t kConsulter[] =
    u"Pour utiliser Vocalyne dans ce logiciel, veuillez consulter le document «\u00A0Utilisation "
    u"avec vos logiciels\u00A0» (accessible par le menu Aide d’Vocalyne).";

/// The one alert that `montre` showed.
template <class Montre>
DAlerteInfo AlerteDe(Montre montre) {
    AlertesNotees alertes;
    montre();
    EXPECT_EQ(1U, alertes.Donne().size());
    EXPECT_EQ(nullptr, alertes.Donne().at(0).parent);
    EXPECT_EQ(4, alertes.Donne().at(0).info.DonneGenre());
    EXPECT_TRUE(alertes.Donne().at(0).info.DonneDetails().EstVide());
    return alertes.Donne().at(0).info;
}

TEST(ConnectorAlerts, AnUpdateOfTheHostIsAskedForWithSentenceAndAdviceInOneText) {
    auto const info = AlerteDe([] { AlerteMiseAJourVocalyneRequise(U(u"Writer")); });
    EXPECT_EQ(U(u"Impossible d’effectuer la requête"), info.DonneTexte());
    EXPECT_EQ(U(u"L’intégration à Writer requiert une mise à jour d’Vocalyne.\n\nPour vérifier les "
                u"mises à jour offertes, veuillez sélectionner «\u00A0Recherche de mise à "
                u"jour\u00A0» dans le menu Aide d’Vocalyne."),
              info.DonneInformation());
}

TEST(ConnectorAlerts, AnOldConnectorIsSaidInTheMainTextWithTheAdviceBelow) {
    auto const info = AlerteDe([] { AlerteConnecteurPasAJour(U(u"never read"), U(u"Writer")); });
    EXPECT_EQ(U(u"Le connecteur d’Vocalyne installé dans Writer n’est pas à jour."),
              info.DonneTexte());
    EXPECT_NE(-1, Trouve(info.DonneInformation(),
                         u"«\u00A0Installation dans vos logiciels\u00A0» du menu Aide"));
    EXPECT_EQ(-1, Trouve(info.DonneInformation(), u"never read"));
}

TEST(ConnectorAlerts, AnImpossibleCallIsSaidInTheMainTextWithTheAdviceBelow) {
    auto const info = AlerteDe([] { AlerteAppelImpossible(U(u"Writer")); });
    EXPECT_EQ(U(u"L’appel d’Vocalyne à partir de l’Agent Vocalyne n’est pas possible pour Writer."),
              info.DonneTexte());
    EXPECT_EQ(U(kConsulter), info.DonneInformation());
}

TEST(ConnectorAlerts, AMissingConnectorIsSaidInTheMainTextWithTheAdviceBelow) {
    auto const info = AlerteDe([] { AlerteConnecteurRequis(U(u"Writer")); });
    EXPECT_EQ(U(u"L’appel d’Vocalyne à partir de l’Agent Vocalyne pour Writer nécessite "
                u"l’installation d’un connecteur."),
              info.DonneTexte());
    EXPECT_EQ(U(kConsulter), info.DonneInformation());
}

TEST(ConnectorAlerts, AnEmptyApplicationNameIsShownAsEmpty) {
    auto const info = AlerteDe([] { AlerteConnecteurPasAJour({}, {}); });
    EXPECT_EQ(U(u"Le connecteur d’Vocalyne installé dans  n’est pas à jour."), info.DonneTexte());
}

TEST(ConnectorAlerts, ApplicationNamesAreTakenAsTheyAre) {
    for (auto const* nom : {u"{1}", u"{", u"}", u"{2} %1 %s", u"<b>&amp;</b>", u"日本語 \U0001F600",
                            u"e\u0301", u"a\nb", u"\"quoted\""}) {
        auto attendu = U(u"Le connecteur d’Vocalyne installé dans ");
        attendu.Ajoute(U(nom));
        attendu.Ajoute(U(u" n’est pas à jour."));
        auto const info = AlerteDe([nom] { AlerteConnecteurPasAJour({}, U(nom)); });
        EXPECT_EQ(attendu, info.DonneTexte());
    }
}

TEST(ConnectorAlerts, AnApplicationNameThatIsNoTextIsStillShown) {
    char16_t const moitie[] = {u'a', 0xD83D, u'b'};
    auto info = AlerteDe([&] { AlerteConnecteurRequis(UniChaine(moitie, 3)); });
    EXPECT_NE(-1, Trouve(info.DonneTexte(), u"pour a?b n")) << "half of a pair becomes \"?\"";
    info = AlerteDe([] { AlerteConnecteurRequis(UniChaine(u"a\0b", 3)); });
    EXPECT_NE(-1, Trouve(info.DonneTexte(), u" nécessite l’installation"));
}

} // namespace
