// SPDX-License-Identifier: MPL-2.0
#include "BancDeFenetre.h"

#include <QProgressBar>

namespace hote {
namespace {

// Without catalogs messages are their French texts.
using PageCorrectionTest = BancDeFenetre;

TEST_F(PageCorrectionTest, ADigitTakesASuggestionAtOnce) {
    Ouvre({Q("un xa xb")});
    Appuie(Qt::Key_1);
    ASSERT_EQ(liaison.demandes.size(), 1U);
    EXPECT_EQ(liaison.demandes[0].apres, Q("bon"));
    EXPECT_EQ(DonneCourant(), Q("xb"));
    Appuie(Qt::Key_2); // there is no second one
    EXPECT_EQ(liaison.demandes.size(), 1U);
}

TEST_F(PageCorrectionTest, DigitsAndLettersAreTextInTheFieldThatReplaces) {
    Ouvre({Q("un xa")});
    auto* const champ = Trouve<QLineEdit>(Q("Remplacer par"));
    champ->setFocus();
    champ->selectAll();
    Appuie(Qt::Key_1);
    Appuie(Qt::Key_I);
    EXPECT_EQ(champ->text(), Q("1i"));
    EXPECT_TRUE(liaison.demandes.empty());
    Appuie(Qt::Key_Return);
    ASSERT_EQ(liaison.demandes.size(), 1U);
    EXPECT_EQ(liaison.demandes[0].apres, Q("1i"));
}

TEST_F(PageCorrectionTest, EachDecisionHasAKeyThatActsAtOnce) {
    Ouvre({Q("xa xa"), Q("xb xc xb"), Q("xd")});
    Appuie(Qt::Key_S);
    Appuie(Qt::Key_S);
    EXPECT_EQ(DonneCourant(), Q("xb"));
    Appuie(Qt::Key_P);
    EXPECT_EQ(DonneCourant(), Q("xa"));
    Appuie(Qt::Key_I);
    EXPECT_EQ(DonneFile(), QStringList({Q("xa"), Q("xb"), Q("xc"), Q("xb"), Q("xd")}));
    Appuie(Qt::Key_T);
    EXPECT_EQ(liaison.demandes.size(), 2U);
    EXPECT_EQ(DonneCourant(), Q("xc"));
    Appuie(Qt::Key_I, Qt::ShiftModifier);
    EXPECT_EQ(DonneFile(), QStringList({Q("xa"), Q("xd")}));
    Appuie(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(DonneCourant(), Q("xc"));
    Appuie(Qt::Key_C);
    EXPECT_EQ(liaison.demandes.size(), 3U);
    Appuie(Qt::Key_R);
    EXPECT_TRUE(DonneFile().isEmpty());
}

TEST_F(PageCorrectionTest, AWordOfOnesOwnIsToldWithItsLanguage) {
    Ouvre({Q("xa")});
    QString dit;
    QObject::connect(&revue, &Revue::MotAjoute,
                     [&](QString const& mot, QString const& langue, bool) { dit = mot + langue; });
    Appuie(Qt::Key_A);
    EXPECT_EQ(dit, Q("xafr"));
}

TEST_F(PageCorrectionTest, ShowsKindPlaceSentenceAndReason) {
    Ouvre({Q("Une phrase. Voici xa ici. Une autre.")});
    Q_EMIT liaison.Nommee({Q("en-tête")});
    QTRY_VERIFY_WITH_TIMEOUT(EstDit(Q("Orthographe, en-tête")), 5000);
    EXPECT_TRUE(EstDit(Q("pourquoi")));
    auto* const phrase = Trouve<VueDePhrase>(Q("Phrase"));
    EXPECT_EQ(phrase->toPlainText(), Q("Voici xa ici."));
    ASSERT_EQ(phrase->extraSelections().size(), 1);
    EXPECT_EQ(phrase->extraSelections()[0].cursor.selectedText(), Q("xa"));
}

TEST_F(PageCorrectionTest, ChoosingInTheListSelectsInTheDocument) {
    Ouvre({Q("xa"), Q("rien"), Q("xb")});
    auto* const liste = Trouve<QListView>(Q("Remarques"));
    QTRY_VERIFY_WITH_TIMEOUT(liste->model()->rowCount() == 2, 5000);
    liste->setFocus();
    Appuie(Qt::Key_Down);
    EXPECT_EQ(DonneCourant(), Q("xb"));
    EXPECT_EQ(liaison.selection.zone, 2);
    Appuie(Qt::Key_1); // the keys act there, too
    ASSERT_EQ(liaison.demandes.size(), 1U);
    EXPECT_EQ(liaison.demandes[0].paragraphe, 2);
}

TEST_F(PageCorrectionTest, ARefusalIsSaidWithItsReason) {
    Ouvre({Q("xa")});
    Appuie(Qt::Key_1);
    liaison.Reponds(IssueDeCorrection::Refusee, Q("paragraphe protégé"));
    verificateur.Travaille();
    EXPECT_TRUE(EstDit(Q("Correction refusée : paragraphe protégé")));
    EXPECT_EQ(DonneCourant(), Q("xa"));
}

TEST_F(PageCorrectionTest, CorrectsNothingWhileTheDocumentIsOutOfReach) {
    Ouvre({Q("xa")});
    Q_EMIT liaison.Perdue(Q("parti"));
    fenetre->AnnoncePerte(Q("parti"));
    EXPECT_TRUE(EstDit(Q("parti")));
    QTRY_VERIFY_WITH_TIMEOUT(!Trouve<QPushButton>(Q("Corriger"))->isEnabled(), 5000);
    Appuie(Qt::Key_1);
    EXPECT_TRUE(liaison.demandes.empty());
    liaison.DonneLecture({Q("xa")});
    EXPECT_FALSE(EstDit(Q("parti")));
    QTRY_VERIFY_WITH_TIMEOUT(Trouve<QPushButton>(Q("Corriger"))->isEnabled(), 5000);
}

TEST_F(PageCorrectionTest, ShowsHowFarItIsAndStops) {
    liaison.DonneLecture({Q("xa"), Q("xb"), Q("xc")});
    verificateur.Travaille(1);
    auto* const progres = Trouve<QProgressBar>(Q("Paragraphes examinés"));
    QTRY_VERIFY_WITH_TIMEOUT(progres->isVisible() && progres->value() == 1, 5000);
    EXPECT_EQ(progres->maximum(), 3);
    QPushButton* arrete = nullptr;
    for (QPushButton* const bouton : fenetre->findChildren<QPushButton*>()) {
        arrete = bouton->text() == Q("Arrêter") ? bouton : arrete;
    }
    ASSERT_NE(arrete, nullptr);
    arrete->click();
    EXPECT_TRUE(verificateur.enCours.empty());
    arrete->click();
    verificateur.Travaille();
    QTRY_VERIFY_WITH_TIMEOUT(!progres->isVisible(), 5000);
}

TEST_F(PageCorrectionTest, SaysWhenNothingIsLeft) {
    Ouvre({Q("xa")});
    Appuie(Qt::Key_I);
    QTRY_VERIFY_WITH_TIMEOUT(EstDit(Q("Plus aucune remarque.")), 5000);
    EXPECT_FALSE(Trouve<QPushButton>(Q("Ignorer"))->isEnabled());
    EXPECT_TRUE(Trouve<QPushButton>(Q("Annuler"))->isEnabled());
}

} // namespace
} // namespace hote
