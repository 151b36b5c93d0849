// SPDX-License-Identifier: MPL-2.0
#include "BancDeRevue.h"

namespace hote {
namespace {

using RevueChange = BancDeRevue;

TEST_F(RevueChange, ExaminesTheChangedParagraphsAlone) {
    Ouvre({Q("xa"), Q("xb"), Q("xc")});
    liaison.DonneLecture({Q("xa"), Q("xb et xd"), Q("neuf"), Q("xc")});
    EXPECT_EQ(verificateur.enCours.size(), 2U);
    verificateur.Travaille();
    EXPECT_EQ(DonneFile(), QStringList({Q("xa"), Q("xb"), Q("xd"), Q("xc")}));
}

TEST_F(RevueChange, KeepsWhatWasDecidedElsewhereInAChangedParagraph) {
    Ouvre({Q("xa et xb")});
    revue.Ignore();
    liaison.DonneLecture({Q("xa et puis xb")});
    verificateur.Travaille();
    EXPECT_EQ(DonneFile(), QStringList({Q("xb")}));
    EXPECT_EQ(DonneCourant(), Q("xb"));
}

TEST_F(RevueChange, GoesOnWhereTheShownRemarkHasGone) {
    Ouvre({Q("xa"), Q("xb"), Q("xc")});
    revue.Suivante();
    liaison.DonneLecture({Q("xa"), Q("juste"), Q("xc")});
    EXPECT_EQ(DonneCourant(), Q("xc"));
}

TEST_F(RevueChange, BringsARefusedCorrectionBackLastWithTheReason) {
    Ouvre({Q("xa xb"), Q("xc")});
    QString raison;
    QObject::connect(&revue, &Revue::Refusee, [&](QString const& dite) { raison = dite; });
    revue.Corrige(Q("bon"));
    liaison.Reponds(IssueDeCorrection::Refusee, Q("protégé"));
    verificateur.Travaille();
    EXPECT_EQ(raison, Q("protégé"));
    EXPECT_EQ(DonneFile(), QStringList({Q("xa"), Q("xb"), Q("xc")}));
    EXPECT_EQ(liaison.lectures, 1);
    QStringList vus{DonneCourant()};
    revue.Ignore();
    vus.append(DonneCourant());
    revue.Ignore();
    vus.append(DonneCourant());
    EXPECT_EQ(vus, QStringList({Q("xb"), Q("xc"), Q("xa")}));
    EXPECT_EQ(revue.Donne(revue.DonneCourante())->raison, Q("protégé"));
    EXPECT_EQ(revue.Donne(revue.DonneCourante())->etat, EtatRemarque::Refusee);
}

TEST_F(RevueChange, LeavesTheOtherCorrectionsOfAParagraphAloneWhenOneIsRefused) {
    Ouvre({Q("xaaaa xb")});
    revue.Corrige(Q("un"));
    revue.Corrige(Q("deux"));
    liaison.Reponds(IssueDeCorrection::Refusee);
    liaison.Reponds(IssueDeCorrection::Faite);
    EXPECT_EQ(revue.Donne(revue.DonneFile().front())->texte, Q("xaaaa deux"));
}

TEST_F(RevueChange, SendsACorrectionAgainThatMetAChangedDocument) {
    Ouvre({Q("un xa"), Q("xb")});
    revue.Corrige(Q("bon"));
    quint64 const perime = liaison.demandes.front().jeton;
    liaison.demandes.clear();
    // The reading was made before the correction came.
    liaison.DonneLecture({Q("petit un xa"), Q("xb")});
    Q_EMIT liaison.Corrigee(perime, IssueDeCorrection::Perimee, {});
    ASSERT_EQ(liaison.demandes.size(), 1U);
    EXPECT_EQ(liaison.demandes[0].debut, 9);
    EXPECT_EQ(liaison.demandes[0].avant, Q("xa"));
    liaison.demandes.clear();
    liaison.DonneLecture({Q("neuf"), Q("petit un xa"), Q("xb")});
    ASSERT_EQ(liaison.demandes.size(), 1U);
    EXPECT_EQ(liaison.demandes[0].paragraphe, 1);
}

TEST_F(RevueChange, DoesNotSendACorrectionAgainWhereLettersWerePutBeforeItsWord) {
    Ouvre({Q("un xa")});
    revue.Corrige(Q("bon"));
    liaison.demandes.clear();
    liaison.DonneLecture({Q("un quxa")});
    EXPECT_TRUE(liaison.demandes.empty());
}

TEST_F(RevueChange, DoesNotSendACorrectionAgainWhoseWordHasChanged) {
    Ouvre({Q("un xa")});
    revue.Corrige(Q("bon"));
    liaison.demandes.clear();
    liaison.DonneLecture({Q("un autre")});
    EXPECT_TRUE(liaison.demandes.empty());
    verificateur.Travaille();
    EXPECT_TRUE(DonneFile().isEmpty());
}

TEST_F(RevueChange, SaysThatTheDocumentIsOutOfReachAndDecidesNothingMeanwhile) {
    Ouvre({Q("xa"), Q("xb")});
    Q_EMIT liaison.Perdue(Q("fermé"));
    EXPECT_TRUE(revue.EstPerdue());
    revue.Corrige(Q("bon"));
    EXPECT_TRUE(liaison.demandes.empty());
    EXPECT_EQ(DonneCourant(), Q("xa"));
}

TEST_F(RevueChange, PicksUpWhereItWasWhenTheDocumentIsBack) {
    Ouvre({Q("xa"), Q("xb"), Q("xc")});
    revue.Ignore();
    Q_EMIT liaison.Perdue({});
    liaison.DonneLecture({Q("xa"), Q("xb"), Q("xc")});
    EXPECT_FALSE(revue.EstPerdue());
    EXPECT_TRUE(verificateur.enCours.empty());
    EXPECT_EQ(DonneFile(), QStringList({Q("xb"), Q("xc")}));
    EXPECT_EQ(DonneCourant(), Q("xb"));
}

TEST_F(RevueChange, NamesPlaces) {
    Ouvre({Q("rien"), Q("xa")});
    EXPECT_EQ(liaison.noms, 1);
    Q_EMIT liaison.Nommee({Q("en-tête"), Q("paragraphe 1")});
    EXPECT_EQ(revue.Donne(revue.DonneCourante())->endroit, Q("paragraphe 1"));
    Q_EMIT liaison.Nommee({Q("d’une autre lecture")});
    EXPECT_EQ(revue.Donne(revue.DonneCourante())->endroit, Q("paragraphe 1"));
}

} // namespace
} // namespace hote
