// SPDX-License-Identifier: MPL-2.0
#include "BancDeRevue.h"

namespace hote {
namespace {

ParagrapheSuivi Fais(char const* texte) {
    QString const t = Q(texte);
    return {1, {t, {{0, t.size(), Q("fr")}}}};
}

Remarque R(int debut, int fin, char const* moteur = "un") {
    return {debut, fin, GenreDeRemarque::Accord, Q(moteur), Q("r"), {}, {}, 1};
}

std::vector<std::pair<int, int>> DonnePlaces(ParagrapheSuivi const& paragraphe) {
    std::vector<std::pair<int, int>> places;
    for (RemarqueSuivie const& suivie : paragraphe.DonneRemarques()) {
        places.emplace_back(suivie.remarque.debut, suivie.remarque.fin);
    }
    return places;
}

using Places = std::vector<std::pair<int, int>>;

class ParagrapheSuiviTest : public ::testing::Test {
  protected:
    quint64 prochain = 1;
};

TEST_F(ParagrapheSuiviTest, MovesRemarksBehindAChangeAndDropsThoseInIt) {
    ParagrapheSuivi p = Fais("abc def ghi");
    p.Recois(Q("un"), {R(0, 3), R(4, 7), R(8, 11)}, prochain);
    p.Relis({Q("abc longer ghi"), {}});
    EXPECT_EQ(DonnePlaces(p), Places({{0, 3}, {11, 14}}));
}

TEST_F(ParagrapheSuiviTest, KeepsAllRemarksWhereTheLanguageAloneHasChanged) {
    ParagrapheSuivi p = Fais("abc def");
    p.Recois(Q("un"), {R(0, 3), R(4, 7)}, prochain);
    p.Relis({Q("abc def"), {{0, 7, Q("en")}}});
    EXPECT_EQ(DonnePlaces(p), Places({{0, 3}, {4, 7}}));
    EXPECT_FALSE(p.EstExamine());
}

TEST_F(ParagrapheSuiviTest, KeepsACorrectionsOwnRemarkOnItsNewText) {
    ParagrapheSuivi p = Fais("abc def ghi");
    p.Recois(Q("un"), {R(4, 7), R(8, 11)}, prochain);
    p.Remplace(4, 7, Q("x"), p.DonneRemarques()[0].id);
    EXPECT_EQ(p.DonneTexte(), Q("abc x ghi"));
    EXPECT_EQ(DonnePlaces(p), Places({{4, 5}, {6, 9}}));
    EXPECT_EQ(p.DonneLu().langues.back().fin, 9);
}

TEST_F(ParagrapheSuiviTest, KeepsNumbersAndDecisionsOfRemarksFoundAgain) {
    ParagrapheSuivi p = Fais("abc def");
    p.Recois(Q("un"), {R(0, 3), R(4, 7)}, prochain);
    quint64 const id = p.DonneRemarques()[1].id;
    p.Trouve(id)->etat = EtatRemarque::Ignoree;
    p.Recois(Q("un"), {R(4, 7)}, prochain);
    ASSERT_EQ(p.DonneRemarques().size(), 1U);
    EXPECT_EQ(p.DonneRemarques()[0].id, id);
    EXPECT_EQ(p.DonneRemarques()[0].etat, EtatRemarque::Ignoree);
}

TEST_F(ParagrapheSuiviTest, LetsAnEngineThatSaysNothingAnyMoreLoseItsRemarksAtTheEnd) {
    ParagrapheSuivi p = Fais("abc def");
    p.Recois(Q("un"), {R(0, 3)}, prochain);
    p.Recois(Q("deux"), {R(4, 7, "deux")}, prochain);
    p.FinisExamen();
    p.RecommenceExamen();
    p.Recois(Q("deux"), {R(4, 7, "deux")}, prochain);
    EXPECT_EQ(p.DonneRemarques().size(), 2U);
    p.FinisExamen();
    EXPECT_EQ(DonnePlaces(p), Places({{4, 7}}));
}

TEST_F(ParagrapheSuiviTest, KeepsLanguagesWithoutGapThroughCorrections) {
    ParagrapheSuivi p(1, {Q("aa bb cc"), {{0, 3, Q("fr")}, {3, 6, Q("en")}, {6, 8, Q("fr")}}});
    p.Remplace(3, 5, Q("longer"), 0);
    p.Remplace(0, 2, {}, 0);
    int place = 0;
    for (EtendueDeLangue const& etendue : p.DonneLu().langues) {
        EXPECT_EQ(etendue.debut, place);
        place = etendue.fin;
    }
    EXPECT_EQ(place, p.DonneTexte().size());
    EXPECT_EQ(p.DonneTexte().mid(p.DonneLu().langues[1].debut, 6), Q("longer"));
}

} // namespace
} // namespace hote
