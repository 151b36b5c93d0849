// SPDX-License-Identifier: MPL-2.0
// The text shown to the tools, and the selection that they hand back.
#include "ConnecteurEssai.h"

#include <gtest/gtest.h>

#include <climits>

namespace {

using Selections = std::vector<ConnecteurEssai::Intervalle>;

class ConnecteurDeContexte : public ConnecteurEssai {
  public:
    explicit ConnecteurDeContexte(std::u16string_view texte = {})
        : InterfaceTexteur(UniChaine())
        , ConnecteurEssai(texte) {}
    UniChaine selection;
    UniChaine DonneTexteSelection() override { return selection; }
};

TEST(GenericContext, IsTheSelectedTextAndSelectsAllOfIt) {
    ConnecteurDeContexte connecteur(u"un mot ici");
    connecteur.selection = U(u"mot");
    connecteur.debutSelection = [] { return 3; };
    connecteur.finSelection = [] { return 6; };
    int debut = -1;
    int fin = -1;
    EXPECT_EQ(U(u"mot"), connecteur.DonneContexte(&debut, &fin));
    EXPECT_EQ(0, debut);
    EXPECT_EQ(3, fin);
    EXPECT_TRUE(connecteur.lectures.empty());
}

TEST(GenericContext, OfACaretIsWhatTheConnectorReadsThere) {
    ConnecteurDeContexte connecteur(u"un mot ici");
    connecteur.selection = U(u"not asked for");
    connecteur.debutSelection = [] { return 4; };
    connecteur.finSelection = [] { return 4; };
    connecteur.lis = [](int, int) { return A(u"mot"); };
    int debut = -1;
    int fin = -1;
    EXPECT_EQ(U(u"mot"), connecteur.DonneContexte(&debut, &fin));
    EXPECT_EQ((Selections{{4, 4}}), connecteur.lectures);
    EXPECT_EQ(0, debut);
    EXPECT_EQ(3, fin);
}

TEST(GenericContext, WhenTheBoundsCannotBeReadIsThatOfTheDocumentsStart) {
    ConnecteurDeContexte connecteur(u"abcdef");
    connecteur.debutSelection = [] { return 3; };
    connecteur.finSelection = []() -> int { Echoue(); };
    int debut = -1;
    int fin = -1;
    EXPECT_TRUE(connecteur.DonneContexte(&debut, &fin).EstVide());
    EXPECT_EQ((Selections{{0, 0}}), connecteur.lectures);
    EXPECT_EQ(0, debut);
    EXPECT_EQ(0, fin);
}

TEST(GenericContext, IsReadAnewEachTime) {
    ConnecteurDeContexte connecteur(u"abcdefgh");
    connecteur.debutSelection = [] { return 2; };
    connecteur.finSelection = [] { return 5; };
    int debut = 0;
    int fin = 0;
    connecteur.DonneContexte(&debut, &fin);
    connecteur.longueur = []() -> int { Echoue(); };
    connecteur.DonneContexte(&debut, &fin);
    connecteur.AjusteSelectionPourOutils(1, 3);
    EXPECT_EQ((Selections{{1, 3}}), connecteur.selections) << "no shift is left of the first";
}

class SelectionHandedBack : public testing::Test {
  protected:
    SelectionHandedBack() {
        connecteur_.debutSelection = [] { return 10; };
        connecteur_.finSelection = [] { return 13; };
        int debut = 0;
        int fin = 0;
        connecteur_.DonneContexte(&debut, &fin);
    }
    ConnecteurDeContexte connecteur_{u"0123456789abcdefghij"};
};

TEST_F(SelectionHandedBack, ShiftsEachEndByItsOwnContextBoundOnPurpose) {
    connecteur_.selectionne = [](int, int) { return 77; };
    EXPECT_EQ(77, connecteur_.AjusteSelectionPourOutils(0, 3));
    EXPECT_EQ((Selections{{10, 16}}), connecteur_.selections) << "13 is added to the end, not 10";
}

TEST_F(SelectionHandedBack, AnswersTheShiftedStartWithoutSelectingForWhatIsEmptyOrNegative) {
    EXPECT_EQ(15, connecteur_.AjusteSelectionPourOutils(5, 2)); // 15, 15
    EXPECT_EQ(16, connecteur_.AjusteSelectionPourOutils(6, 2)); // 16, 15
    EXPECT_EQ(-1, connecteur_.AjusteSelectionPourOutils(-11, 5));
    EXPECT_TRUE(connecteur_.selections.empty());
    EXPECT_EQ(0, connecteur_.AjusteSelectionPourOutils(-10, -12)); // 0, 1
    EXPECT_EQ((Selections{{0, 1}}), connecteur_.selections);
}

TEST_F(SelectionHandedBack, IsLeftAloneWhereNothingMayBeChanged) {
    connecteur_.peutModifier = false;
    EXPECT_EQ(0, connecteur_.AjusteSelectionPourOutils(0, 3));
    EXPECT_TRUE(connecteur_.selections.empty());
}

TEST_F(SelectionHandedBack, OfAnySizeDoesNotOverflow) {
    EXPECT_EQ(INT_MIN + 9, connecteur_.AjusteSelectionPourOutils(INT_MAX, INT_MAX));
    EXPECT_EQ(INT_MIN + 10, connecteur_.AjusteSelectionPourOutils(INT_MIN, INT_MAX));
    EXPECT_TRUE(connecteur_.selections.empty());
}

TEST(SelectionHandedBackWithoutAContext, IsTakenAsItIs) {
    ConnecteurDeContexte connecteur(u"abcdef");
    EXPECT_EQ(2, connecteur.AjusteSelectionPourOutils(2, 4)) << "the default answers the start";
    EXPECT_EQ((Selections{{2, 4}}), connecteur.selections);
}

TEST(GenericContext, AConnectorsOwnMayChangeTheShifts) {
    class Propre : public ConnecteurDeContexte {
      public:
        Propre()
            : InterfaceTexteur(UniChaine())
            , ConnecteurDeContexte(u"0123456789") {}
        void DonneTexteContexte(int& debutContexte, int& finContexte, UniChaine& texte,
                                int& debutDedans, int& finDedans) override {
            EXPECT_EQ(4, debutContexte);
            EXPECT_EQ(6, finContexte);
            debutContexte = 1;
            finContexte = 2;
            texte = U(u"123");
            debutDedans = 3;
            finDedans = 5;
        }
    };
    Propre connecteur;
    connecteur.debutSelection = [] { return 4; };
    connecteur.finSelection = [] { return 6; };
    int debut = 0;
    int fin = 0;
    EXPECT_EQ(U(u"123"), connecteur.DonneContexte(&debut, &fin));
    EXPECT_EQ(3, debut);
    EXPECT_EQ(5, fin);
    connecteur.AjusteSelectionPourOutils(0, 3);
    EXPECT_EQ((Selections{{1, 5}}), connecteur.selections);
}

} // namespace
