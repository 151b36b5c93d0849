// SPDX-License-Identifier: MPL-2.0
// What a connector that overrides nothing answers.
#include "ImageCommune.h"
#include "InitialisationGenerale.h"
#include "outils/ConnecteurMuet.h"
#include "outils/Textes.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace {

class GenericAgentDefaults : public testing::Test {
  protected:
    ConnecteurMuet connecteur_;
    InterfaceAgentTexteur& hote_ = connecteur_; ///< as the host sees it
};

TEST_F(GenericAgentDefaults, ItsOwnFieldsStartEmpty) {
    EXPECT_TRUE(connecteur_.PremiereChaine().EstVide());
    EXPECT_TRUE(connecteur_.SecondeChaine().EstVide());
    EXPECT_TRUE(connecteur_.Bornes().empty());
    EXPECT_EQ(0, connecteur_.DernierEntier());
}

TEST_F(GenericAgentDefaults, TheSpecialCharactersAreTheFillerAndOneMore) {
    EXPECT_EQ(std::string("\x07\x11"), connecteur_.DonneCaracteresSpeciaux());
    EXPECT_EQ(connecteur_.DonneCaracteresSpeciaux(), connecteur_.DonneCaracteresSpeciaux())
        << "a constant, not made anew";
}

TEST_F(GenericAgentDefaults, TextsAreEmpty) {
    EXPECT_TRUE(hote_.DonneCheminDocument().EstVide());
    EXPECT_TRUE(hote_.DonneChaineAgent7().EstVide());
    EXPECT_TRUE(hote_.DonneNomApplication().EstVide());
    EXPECT_TRUE(connecteur_.DonneTexteSelection().EstVide());
    EXPECT_EQ(0, connecteur_.DonneTexteAvecAttributs(0, 10).Longueur());
}

TEST_F(GenericAgentDefaults, QuestionsHaveTheirFixedAnswers) {
    EXPECT_EQ(0, hote_.Requete14());
    UniChaine message;
    EXPECT_TRUE(hote_.InitialiseTexteur(U(u"any class"), message, 3));
    EXPECT_TRUE(message.EstVide());
    EXPECT_TRUE(hote_.Requete17());
    EXPECT_FALSE(hote_.Requete21());
    EXPECT_TRUE(hote_.Requete30());
    EXPECT_TRUE(hote_.Requete33());
    EXPECT_TRUE(connecteur_.AccepteIntervallesZone(1, 2, 3, 4));
    EXPECT_TRUE(connecteur_.PeutModifier());
    EXPECT_TRUE(connecteur_.PeutCorrigerZone(0, 1, U(u"a")));
    EXPECT_FALSE(connecteur_.RemplaceEspacesInsecables());
    EXPECT_EQ(32768, connecteur_.DonneTailleBloc());
}

TEST_F(GenericAgentDefaults, TheDocumentHasNoLengthAndNoSelection) {
    EXPECT_EQ(0, connecteur_.DonneLongueurTexte());
    EXPECT_EQ(0, connecteur_.DonneDebutSelectionTexte());
    EXPECT_EQ(0, connecteur_.DonneFinSelectionTexte());
}

TEST_F(GenericAgentDefaults, SelectingAnswersTheStart) {
    EXPECT_EQ(7, connecteur_.SelectionneDansTexteur(7, 9));
    EXPECT_EQ(-3, connecteur_.SelectionneDansTexteur(-3, 9));
}

TEST_F(GenericAgentDefaults, AdjustingAnIntervalLeavesTheOutsAlone) {
    int debut = 5;
    int fin = 6;
    connecteur_.AjusteIntervalleZone(1, 2, 3, debut, fin, true);
    EXPECT_EQ(5, debut);
    EXPECT_EQ(6, fin);
}

TEST_F(GenericAgentDefaults, ReplacingTheSelectionAnswersTheLengthOfTheText) {
    EXPECT_EQ(4, hote_.RemplaceEtReselectionne(U(u"a\U0001F600b")));
    EXPECT_EQ(0, hote_.RemplaceEtReselectionne(UniChaine()));
}

TEST_F(GenericAgentDefaults, HooksDoNothing) {
    auto texte = A(u"abc");
    hote_.TraiteTexteLu(texte);
    EXPECT_EQ(A(u"abc"), texte);
    hote_.Crochet03();
    hote_.Crochet19();
    hote_.Crochet23();
    hote_.Crochet24();
    hote_.Crochet28();
    hote_.Crochet29();
    hote_.Suspends();
    connecteur_.AvantRemplacement(U(u"a"));
    connecteur_.PrepareLecture();
    connecteur_.RemplaceDansTexteur(0, 1, 2, U(u"a"), false);
}

TEST_F(GenericAgentDefaults, TheImageOfAnApplicationWithoutAPathStaysAsItWas) {
    InitQApplication(); // images need one
    std::unique_ptr<QCoreApplication> const application(QCoreApplication::instance());
    ImageCommune image;
    hote_.DonneImageApplication(image);
    EXPECT_TRUE(image.EstVide());

    QPixmap rouge(3, 3);
    rouge.fill(Qt::red);
    image.Prends(rouge);
    hote_.DonneImageApplication(image);
    EXPECT_EQ(rouge.cacheKey(), image.DonnePixmap().cacheKey());
}

class ReplacingConnector : public ConnecteurMuet {
  public:
    ReplacingConnector()
        : InterfaceTexteur(UniChaine()) {}
    void AvantRemplacement(UniChaine const& texte) override { avant_.Ajoute(texte); }
    int ApresRemplacement(int longueur) override {
        EXPECT_EQ(U(u"mot"), avant_) << "the text comes first";
        return longueur + 100;
    }

  private:
    UniChaine avant_;
};

TEST(GenericAgent, ReplacingTheSelectionGoesThroughBothExtensionPointsInOrder) {
    ReplacingConnector connecteur;
    EXPECT_EQ(103,
              static_cast<InterfaceAgentTexteur&>(connecteur).RemplaceEtReselectionne(U(u"mot")));
}

} // namespace
