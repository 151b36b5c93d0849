// SPDX-License-Identifier: MPL-2.0
#include "BancDeRevue.h"

namespace hote {
namespace {

using RevueTest = BancDeRevue;

TEST_F(RevueTest, ShowsRemarksInReadingOrderAndSelectsTheFirst) {
    Ouvre({Q("un xa dos"), Q("rien"), Q("xb et xc")});
    EXPECT_EQ(DonneFile(), QStringList({Q("xa"), Q("xb"), Q("xc")}));
    EXPECT_EQ(DonneCourant(), Q("xa"));
    EXPECT_EQ(liaison.selection.zone, 0);
    EXPECT_EQ(liaison.selection.debut, 3);
    EXPECT_EQ(liaison.selection.fin, 5);
}

TEST_F(RevueTest, BeginsAtTheCaretAndComesBackToTheStart) {
    Ouvre({Q("xa"), Q("xb et xc"), Q("xd")}, {1, 4, 4});
    QStringList vus{DonneCourant()};
    for (int i = 0; i < 4; ++i) {
        revue.Suivante();
        vus.append(DonneCourant());
    }
    EXPECT_EQ(vus, QStringList({Q("xc"), Q("xd"), Q("xa"), Q("xb"), Q("xc")}));
}

TEST_F(RevueTest, HasTheParagraphsNearTheCaretExaminedFirst) {
    liaison.DonneLecture({Q("xa"), Q("xb"), Q("xc")}, {2, 1, 1});
    verificateur.Travaille(1);
    EXPECT_EQ(DonneFile(), QStringList({Q("xc")}));
    EXPECT_EQ(DonneCourant(), Q("xc"));
}

TEST_F(RevueTest, DoesNotChooseARemarkWhileWhatStandsBeforeItIsUnknown) {
    liaison.DonneLecture({Q("xa"), Q("xb")});
    auto const premier = verificateur.enCours.begin()->first;
    Q_EMIT verificateur.Trouvees(premier + 1, Q("essai"),
                                 {{0, 2, GenreDeRemarque::Accord, Q("essai"), {}, {}, {}, 1}});
    EXPECT_EQ(revue.DonneCourante(), 0U);
    verificateur.Travaille();
    EXPECT_EQ(DonneCourant(), Q("xa"));
}

TEST_F(RevueTest, ComesToWhatASlowerEngineFindsBeforeTheRemarkShown) {
    liaison.DonneLecture({Q("lent et xa"), Q("xb")});
    auto const premier = verificateur.enCours.begin()->first;
    Q_EMIT verificateur.Trouvees(premier, Q("essai"), VerificateurFaux::Cherche(Q("lent et xa")));
    EXPECT_EQ(DonneCourant(), Q("xa"));
    Q_EMIT verificateur.Trouvees(premier, Q("autre"),
                                 {{0, 4, GenreDeRemarque::Accord, Q("autre"), Q("r"), {}, {}, 1}});
    verificateur.enCours.erase(premier);
    Q_EMIT verificateur.Examine(premier);
    verificateur.Travaille();
    EXPECT_EQ(DonneCourant(), Q("xa"));
    revue.Ignore();
    EXPECT_EQ(DonneCourant(), Q("lent"));
    revue.Suivante();
    EXPECT_EQ(DonneCourant(), Q("xb"));
}

TEST_F(RevueTest, CorrectsAndGoesOnWithoutWaitingForTheDocument) {
    Ouvre({Q("un xaaa xb")});
    revue.Corrige(Q("bon"));
    EXPECT_EQ(DonneCourant(), Q("xb"));
    revue.Corrige(Q("mieux"));
    ASSERT_EQ(liaison.demandes.size(), 2U);
    EXPECT_EQ(liaison.demandes[0].debut, 3);
    EXPECT_EQ(liaison.demandes[0].avant, Q("xaaa"));
    // Where it stands behind the first correction.
    EXPECT_EQ(liaison.demandes[1].debut, 7);
    EXPECT_EQ(liaison.demandes[1].avant, Q("xb"));
}

TEST_F(RevueTest, ExaminesACorrectedParagraphAgain) {
    Ouvre({Q("un xa"), Q("dos")});
    revue.Corrige(Q("xz encore"));
    ASSERT_EQ(verificateur.enCours.size(), 1U);
    verificateur.Travaille();
    EXPECT_EQ(DonneCourant(), Q("xz"));
}

TEST_F(RevueTest, CorrectsAllThatAreAlike) {
    Ouvre({Q("xa xb xa"), Q("xa")});
    revue.CorrigeTousPareils(Q("bon"));
    ASSERT_EQ(liaison.demandes.size(), 3U);
    EXPECT_EQ(liaison.demandes[1].debut, 7);
    EXPECT_EQ(liaison.demandes[2].paragraphe, 1);
    EXPECT_EQ(DonneFile(), QStringList({Q("xb")}));
    EXPECT_EQ(DonneCourant(), Q("xb"));
}

TEST_F(RevueTest, IgnoresOnePlaceOrTheWordEverywhere) {
    Ouvre({Q("xa xa"), Q("xb xa xb")});
    revue.Ignore();
    EXPECT_EQ(DonneFile(), QStringList({Q("xa"), Q("xb"), Q("xa"), Q("xb")}));
    revue.IgnorePartout();
    EXPECT_EQ(DonneFile(), QStringList({Q("xb"), Q("xb")}));
}

TEST_F(RevueTest, TellsWhichWordIsRightForGoodAndInWhichLanguage) {
    Ouvre({Q("xa"), Q("xa xb")});
    QStringList dits;
    QObject::connect(&revue, &Revue::MotAjoute,
                     [&](QString const& mot, QString const& langue, bool ajoute) {
                         dits << mot << langue << (ajoute ? Q("oui") : Q("non"));
                     });
    revue.AjouteAuxMots();
    EXPECT_EQ(DonneFile(), QStringList({Q("xb")}));
    revue.Annule();
    EXPECT_EQ(DonneFile(), QStringList({Q("xa"), Q("xa"), Q("xb")}));
    EXPECT_EQ(dits, QStringList({Q("xa"), Q("fr"), Q("oui"), Q("xa"), Q("fr"), Q("non")}));
}

TEST_F(RevueTest, TurnsARuleOff) {
    Ouvre({Q("xa"), Q("xb")});
    revue.EteinsRegle();
    EXPECT_TRUE(DonneFile().isEmpty());
    EXPECT_EQ(revue.DonneCourante(), 0U);
    revue.Annule();
    EXPECT_EQ(DonneCourant(), Q("xa"));
}

TEST_F(RevueTest, GoesBackToRemarksThatWerePassedOver) {
    Ouvre({Q("xa xb"), Q("xc")});
    revue.Suivante();
    revue.Suivante();
    EXPECT_EQ(DonneCourant(), Q("xc"));
    revue.Precedente();
    EXPECT_EQ(DonneCourant(), Q("xb"));
    revue.Precedente();
    revue.Precedente();
    EXPECT_EQ(DonneCourant(), Q("xc"));
}

TEST_F(RevueTest, TakesACorrectionBackInTheDocument) {
    Ouvre({Q("un xa dos")});
    revue.Corrige(Q("bon"));
    liaison.Reponds(IssueDeCorrection::Faite);
    verificateur.Travaille();
    EXPECT_EQ(revue.DonneCourante(), 0U);
    revue.Annule();
    ASSERT_EQ(liaison.demandes.size(), 1U);
    EXPECT_EQ(liaison.demandes[0].avant, Q("bon"));
    EXPECT_EQ(liaison.demandes[0].apres, Q("xa"));
    EXPECT_EQ(DonneCourant(), Q("xa"));
    verificateur.Travaille();
    EXPECT_EQ(DonneFile(), QStringList({Q("xa")}));
    EXPECT_FALSE(revue.PeutAnnuler());
}

TEST_F(RevueTest, TakesBackAllAlikeAtOnce) {
    Ouvre({Q("xa xa"), Q("xa")});
    revue.CorrigeTousPareils(Q("bon"));
    for (int i = 0; i < 3; ++i) {
        liaison.Reponds(IssueDeCorrection::Faite);
    }
    verificateur.Travaille();
    revue.Annule();
    EXPECT_EQ(liaison.demandes.size(), 3U);
    EXPECT_EQ(DonneFile(), QStringList({Q("xa"), Q("xa"), Q("xa")}));
}

TEST_F(RevueTest, StopsExaminingAndTakesItUpAgain) {
    liaison.DonneLecture({Q("xa"), Q("xb"), Q("xc")});
    verificateur.Travaille(1);
    revue.Arrete();
    EXPECT_TRUE(verificateur.enCours.empty());
    EXPECT_EQ(revue.DonneProgres().examines, 1);
    revue.Reprends();
    verificateur.Travaille();
    EXPECT_EQ(revue.DonneProgres().examines, 3);
    EXPECT_EQ(DonneFile(), QStringList({Q("xa"), Q("xb"), Q("xc")}));
}

} // namespace
} // namespace hote
