// SPDX-License-Identifier: MPL-2.0
// A generic zone's operations, as the connector hears of them: in absolute positions.
#include "ConnecteurEssai.h"
#include "ImplZoneDeTexteTEMP.h"

#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <optional>

namespace {

/// Notes what zones ask.
class Ecoute : public ConnecteurEssai {
  public:
    struct Remplacement {
        int debut, fin, zone;
        UniChaine texte;
        bool drapeau;
    };

    explicit Ecoute(std::u16string_view texte)
        : InterfaceTexteur(UniChaine())
        , ConnecteurEssai(texte) {}

    std::optional<std::array<int, 4>> intervalles;
    std::optional<Remplacement> remplacement;
    std::optional<std::tuple<int, int, UniChaine>> demande;
    std::optional<std::array<int, 5>> ajustement;
    bool drapeauAjustement = false;
    bool reponse = true;

    bool AccepteIntervallesZone(int debut1, int fin1, int debut2, int fin2) override {
        intervalles = {debut1, fin1, debut2, fin2};
        return reponse;
    }
    void RemplaceDansTexteur(int debut, int fin, int zone, UniChaine const& texte,
                             bool drapeau) override {
        remplacement = {debut, fin, zone, texte, drapeau};
    }
    bool PeutCorrigerZone(int debut, int fin, UniChaine const& texte) override {
        demande = {debut, fin, texte};
        return reponse;
    }
    void AjusteIntervalleZone(int debut, int fin, int zone, int& debutAjuste, int& finAjustee,
                              bool drapeau) override {
        ajustement = {debut, fin, zone, debutAjuste, finAjustee};
        drapeauAjustement = drapeau;
        debutAjuste = debut - 1;
        finAjustee = fin + 1;
    }
};

class GenericZone : public testing::Test {
  protected:
    GenericZone() {
        connecteur_.Bornes() = {10, 20};
        connecteur_.SynchronisePositions(zones_);
    }
    InterfaceZoneDeTexte& Seconde() { return *zones_.DonneZone(1); } // [10, 20)

    Ecoute connecteur_{u"0123456789abcdefghij"};
    CollectionZonesDeTexte zones_;
};

TEST_F(GenericZone, AcceptsIntervalsAsItsConnectorDoes) {
    EXPECT_TRUE(Seconde().AccepteIntervalles(0, 1, 2, 10));
    EXPECT_EQ((std::array<int, 4>{10, 11, 12, 20}), connecteur_.intervalles);
    connecteur_.reponse = false;
    EXPECT_FALSE(Seconde().AccepteIntervalles(0, 1, 2, 3));
}

TEST_F(GenericZone, AsksWhetherAnIntervalMayBeCorrectedInAbsolutePositions) {
    EXPECT_TRUE(Seconde().PeutCorriger(2, 5, U(u"cde")));
    EXPECT_EQ(std::make_tuple(12, 15, U(u"cde")), connecteur_.demande);
    connecteur_.reponse = false;
    EXPECT_FALSE(Seconde().PeutCorriger(2, 5, U(u"cde")));
}

TEST_F(GenericZone, ACorrectionReachesTheConnectorAndAnswersFalseOnPurpose) {
    for (bool const drapeau : {true, false}) {
        EXPECT_FALSE(Seconde().CorrigeDansTexteur(1, 3, U(u"bc"), drapeau));
        ASSERT_TRUE(connecteur_.remplacement.has_value());
        EXPECT_EQ(11, connecteur_.remplacement->debut);
        EXPECT_EQ(13, connecteur_.remplacement->fin);
        EXPECT_EQ(20, connecteur_.remplacement->zone);
        EXPECT_EQ(U(u"bc"), connecteur_.remplacement->texte);
        EXPECT_EQ(drapeau, connecteur_.remplacement->drapeau);
    }
}

TEST_F(GenericZone, AdjustsAnIntervalInTheDocumentAndAnswersInTheZone) {
    int debut = 3;
    int fin = 4;
    Seconde().AjusteIntervalle(2, 5, &debut, &fin, true);
    EXPECT_EQ((std::array<int, 5>{12, 15, 20, 13, 14}), connecteur_.ajustement)
        << "the outs come in shifted as well";
    EXPECT_TRUE(connecteur_.drapeauAjustement);
    EXPECT_EQ(1, debut);
    EXPECT_EQ(6, fin);
    Seconde().AjusteIntervalle(2, 5, &debut, &fin, false);
    EXPECT_FALSE(connecteur_.drapeauAjustement);
}

TEST_F(GenericZone, WithoutAConnectorsAdjustmentTheOutsComeBackAsTheyWere) {
    ConnecteurMuet muet;
    ImplZoneDeTexteTEMP zone(&muet, 10, 20);
    int debut = INT_MAX;
    int fin = INT_MIN;
    zone.AjusteIntervalle(2, 5, &debut, &fin, true);
    EXPECT_EQ(INT_MAX, debut);
    EXPECT_EQ(INT_MIN, fin);
}

TEST(GenericZoneOfAConnectorThatFails, LetsItsExceptionThroughAndAdjustsNothing) {
    class Defaillant : public ConnecteurEssai {
      public:
        Defaillant()
            : InterfaceTexteur(UniChaine())
            , ConnecteurEssai(u"abcdef") {}
        void AjusteIntervalleZone(int, int, int, int& debut, int& fin, bool) override {
            debut = fin = 99;
            Echoue();
        }
        bool PeutCorrigerZone(int, int, UniChaine const&) override { Echoue(); }
    };
    Defaillant connecteur;
    ImplZoneDeTexteTEMP zone(&connecteur, 3, 6);
    int debut = 1;
    int fin = 2;
    EXPECT_ANY_THROW(zone.AjusteIntervalle(0, 1, &debut, &fin, false));
    EXPECT_EQ(1, debut);
    EXPECT_EQ(2, fin);
    EXPECT_ANY_THROW(zone.PeutCorriger(0, 1, U(u"d")));
}

TEST_F(GenericZone, SelectsInAbsolutePositionsAndAnswersWhetherTheAnswerIsNotZero) {
    connecteur_.selectionne = [](int, int) { return 0; };
    EXPECT_FALSE(Seconde().SelectionneIntervalle(1, 2));
    connecteur_.selectionne = [](int, int) { return -1; };
    EXPECT_TRUE(Seconde().SelectionneIntervalle(3, 4));
    EXPECT_EQ((std::vector<ConnecteurEssai::Intervalle>{{11, 12}, {13, 14}}),
              connecteur_.selections);
}

TEST_F(GenericZone, WithoutAConnectorsSelectionTheAnswerIsTheAbsoluteStart) {
    EXPECT_TRUE(Seconde().SelectionneIntervalle(0, 2));    // 10
    EXPECT_FALSE(Seconde().SelectionneIntervalle(-10, 2)); // 0
    EXPECT_FALSE(zones_.DonneZone(0)->SelectionneIntervalle(0, 2));
}

TEST_F(GenericZone, HasNoAuxiliaryTextAndIsNotMarked) {
    EXPECT_TRUE(Seconde().DonneChaineAuxiliaire().EstVide());
    EXPECT_FALSE(Seconde().EstMarquee());
}

TEST_F(GenericZone, HandsOutCopiesOfItsText) {
    auto texte = Seconde().DonneTexte();
    texte.MetsUnite(0, u'!');
    EXPECT_EQ(U(u"abcdefghij"), TexteDe(Seconde().DonneTexte()));
    EXPECT_EQ(10, Seconde().DonneLongueur());
}

TEST_F(GenericZone, StoresTheSelectionItIsGivenUnchanged) {
    ConnecteurMuet muet;
    ImplZoneDeTexteTEMP zone(&muet, 10, 20);
    EXPECT_EQ(0, zone.DonneDebutSelection());
    EXPECT_EQ(0, zone.DonneFinSelection());
    zone.MetsSelection(-4, INT_MAX);
    EXPECT_EQ(-4, zone.DonneDebutSelection());
    EXPECT_EQ(INT_MAX, zone.DonneFinSelection());
}

TEST_F(GenericZone, IsEmptyOfTextUntilItIsFilled) {
    ConnecteurMuet muet;
    ImplZoneDeTexteTEMP zone(&muet, 10, 13);
    EXPECT_EQ(0, zone.DonneLongueur());
    zone.Remplis();
    EXPECT_EQ(Bourre(3), TexteDe(zone.DonneTexte()));
}

TEST_F(GenericZone, PositionsOfAnySizeWrapInsteadOfOverflowing) {
    int debut = INT_MAX;
    int fin = INT_MAX;
    Seconde().AccepteIntervalles(INT_MAX, INT_MIN, -10, INT_MAX - 10);
    EXPECT_EQ((std::array<int, 4>{INT_MIN + 9, INT_MIN + 10, 0, INT_MAX}), connecteur_.intervalles);
    Seconde().AjusteIntervalle(INT_MAX, INT_MAX - 11, &debut, &fin, false);
    Seconde().PeutCorriger(INT_MAX, INT_MIN, UniChaine());
    Seconde().SelectionneIntervalle(INT_MAX, INT_MIN);
    Seconde().CorrigeDansTexteur(INT_MIN, INT_MAX, U(u"x"), false);
}

} // namespace
