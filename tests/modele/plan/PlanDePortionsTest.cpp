// SPDX-License-Identifier: MPL-2.0
#include "modele/PlanDePortions.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

using compagnon::EtapeEdition;
using compagnon::GenrePortion;
using compagnon::PlanDePortions;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

struct Attendue {
    std::size_t portion;
    std::size_t debut;
    std::size_t fin;
    std::u16string ajout;
};

bool operator==(EtapeEdition const& etape, Attendue const& attendue) {
    return etape.portion == attendue.portion && etape.debut == attendue.debut &&
           etape.fin == attendue.fin && etape.ajout == attendue.ajout;
}

/// "un chat noir", with "chat" bold.
PlanDePortions ChatEnGras() {
    PlanDePortions plan;
    plan.Ajoute(GenrePortion::Texte, u"un ");
    plan.Ajoute(GenrePortion::Texte, u"chat", contrat::kStyleGras);
    plan.Ajoute(GenrePortion::Texte, u" noir");
    return plan;
}

} // namespace

TEST(PortionPlan, LeavesOutWhatIsNotReadAndPutsOneUnitForWhatIsOneThing) {
    PlanDePortions plan;
    plan.Ajoute(GenrePortion::Texte, u"a");
    plan.Ajoute(GenrePortion::Exclue, u"deleted");
    plan.Ajoute(GenrePortion::Substitut);
    plan.Ajoute(GenrePortion::Ancre);
    plan.Ajoute(GenrePortion::Limite);
    plan.Ajoute(GenrePortion::Substitut, u"\n");
    plan.Ajoute(GenrePortion::Texte, u"b");
    EXPECT_EQ(plan.DonneTexte(), u"a\u0007\nb");
}

TEST(PortionPlan, ASoftHyphenStandsAsNothing) {
    PlanDePortions plan;
    plan.Ajoute(GenrePortion::Texte, u"\u00ADanti\u00ADcon\u00ADstitution\u00AD");
    EXPECT_EQ(plan.DonneTexte(), u"anticonstitution");
    EXPECT_EQ(plan.DonnePlace(4, false)->unite, 5U);
    EXPECT_EQ(plan.DonnePlace(4, true)->unite, 6U);
    EXPECT_EQ(plan.DonneDecalage({0, 6}), 4U);
}

TEST(PortionPlan, AnEditBesideASoftHyphenLeavesItAlone) {
    PlanDePortions plan;
    plan.Ajoute(GenrePortion::Texte, u"anti\u00ADconstitusion");
    auto const etapes = plan.Prepare(0, 16, u"anticonstitution");
    ASSERT_TRUE(etapes);
    EXPECT_THAT(*etapes, ElementsAre(Attendue{0, 14, 14, u"t"}, Attendue{0, 13, 14, u""}));
}

TEST(PortionPlan, WhatCannotTravelStandsAsTheFillerOneForOne) {
    PlanDePortions plan;
    plan.Ajoute(GenrePortion::Texte, std::u16string{u'a', 0xD800, u'b', 0, u'c'});
    EXPECT_EQ(plan.DonneTexte(), u"a\u0007b\u0007c");
    EXPECT_EQ(plan.DonnePlace(5, false)->unite, 5U);
}

TEST(PortionPlan, StylesInsideAPortionStandWhereItsLettersAreRead) {
    PlanDePortions plan;
    plan.Ajoute(GenrePortion::Texte, u"un ");
    plan.Ajoute(u"a\u00ADb \u05D0\u05D1",
                {{0, 4, contrat::kStyleGras}, {4, 6, contrat::kStyleItalique}});
    plan.Ajoute(u"c", {{0, 1, contrat::kStyleItalique}});
    plan.Ajoute(u"", {});
    EXPECT_EQ(plan.DonneTexte(), u"un ab \u05D0\u05D1c");
    EXPECT_THAT(plan.DonneStyles(),
                ElementsAre(compagnon::PlageDeStyle{3, 6, contrat::kStyleGras},
                            compagnon::PlageDeStyle{6, 9, contrat::kStyleItalique}));
    EXPECT_EQ(plan.DonnePortions().size(), 4U);
}

TEST(PortionPlan, NeighbouringEqualStylesAreOneRun) {
    PlanDePortions plan;
    plan.Ajoute(GenrePortion::Texte, u"ab", contrat::kStyleGras);
    plan.Ajoute(GenrePortion::Exclue, u"zzz", contrat::kStyleItalique);
    plan.Ajoute(GenrePortion::Texte, u"cd", contrat::kStyleGras);
    plan.Ajoute(GenrePortion::Texte, u"ef");
    EXPECT_THAT(plan.DonneStyles(), ElementsAre(compagnon::PlageDeStyle{0, 4, 1}));
}

TEST(PortionPlan, OnlyTheSmallestDifferingSpanChanges) {
    auto const etapes = ChatEnGras().Prepare(3, 7, u"chut");
    ASSERT_TRUE(etapes);
    EXPECT_THAT(*etapes, ElementsAre(Attendue{1, 3, 3, u"u"}, Attendue{1, 2, 3, u""}));
}

TEST(PortionPlan, TheSameTextTakesNoStep) {
    auto const etapes = ChatEnGras().Prepare(0, 12, u"un chat noir");
    ASSERT_TRUE(etapes);
    EXPECT_THAT(*etapes, IsEmpty());
}

TEST(PortionPlan, EachLetterKeepsThePortionOfTheOneItReplaces) {
    auto const etapes = ChatEnGras().Prepare(0, 12, u"le chien gris");
    ASSERT_TRUE(etapes);
    // From the last portion to the first; "chien" stays in the bold one.
    EXPECT_EQ(etapes->front().portion, 2U);
    EXPECT_EQ(etapes->back().portion, 0U);
    std::u16string gras = u"chat";
    for (EtapeEdition const& etape : *etapes) {
        if (etape.portion == 1) {
            gras.replace(etape.debut, etape.fin - etape.debut, etape.ajout);
        }
    }
    EXPECT_EQ(gras, u"chien");
}

TEST(PortionPlan, LettersPutInAtABorderGoWithTheOnesBefore) {
    auto const etapes = ChatEnGras().Prepare(3, 7, u"chats");
    ASSERT_TRUE(etapes);
    EXPECT_THAT(*etapes, ElementsAre(Attendue{1, 4, 4, u"s"}));
}

TEST(PortionPlan, LettersPutInAtTheStartOfTheRangeGoWithItsWord) {
    auto const etapes = ChatEnGras().Prepare(3, 7, u"achat");
    ASSERT_TRUE(etapes);
    EXPECT_THAT(*etapes, ElementsAre(Attendue{1, 1, 1, u"ac"}, Attendue{1, 0, 1, u""}));
}

TEST(PortionPlan, LettersPutInAtTheEndOfABookmarkStandInsideIt) {
    PlanDePortions plan;
    plan.Ajoute(GenrePortion::Limite);
    plan.Ajoute(GenrePortion::Texte, u"chat");
    plan.Ajoute(GenrePortion::Limite);
    plan.Ajoute(GenrePortion::Texte, u" noir");
    auto const etapes = plan.Prepare(0, 4, u"chats");
    ASSERT_TRUE(etapes);
    EXPECT_THAT(*etapes, ElementsAre(Attendue{1, 3, 3, u"ts"}, Attendue{1, 5, 6, u""}));
}

TEST(PortionPlan, LettersPutInAtTheEndOfABookmarkAmongOtherChangesStandInsideIt) {
    PlanDePortions plan;
    plan.Ajoute(GenrePortion::Texte, u"le ");
    plan.Ajoute(GenrePortion::Limite);
    plan.Ajoute(GenrePortion::Texte, u"chat");
    plan.Ajoute(GenrePortion::Limite);
    plan.Ajoute(GenrePortion::Texte, u" noir");
    auto const etapes = plan.Prepare(0, 12, u"les chats noir");
    ASSERT_TRUE(etapes);
    EXPECT_THAT(*etapes, ElementsAre(Attendue{2, 3, 3, u"ts"}, Attendue{2, 5, 6, u""},
                                     Attendue{0, 2, 2, u"s"}));
}

TEST(PortionPlan, LettersPutInAtAParagraphsStartLeaveItsFirstLetterWhereItIs) {
    PlanDePortions plan;
    plan.Ajoute(GenrePortion::Texte, u"eau");
    for (std::size_t const fin : {0, 3}) {
        auto const etapes = plan.Prepare(0, fin, u"l'" + std::u16string(u"eau").substr(0, fin));
        ASSERT_TRUE(etapes);
        EXPECT_THAT(*etapes, ElementsAre(Attendue{0, 0, 0, u"l'"}));
    }
}

TEST(PortionPlan, LettersPutInBeforeAParagraphThatABookmarkStartsStandOutsideOfIt) {
    PlanDePortions plan;
    plan.Ajoute(GenrePortion::Limite);
    plan.Ajoute(GenrePortion::Texte, u"eau");
    plan.Ajoute(GenrePortion::Limite);
    auto const etapes = plan.Prepare(0, 0, u"l'");
    ASSERT_TRUE(etapes);
    EXPECT_THAT(*etapes, ElementsAre(Attendue{1, 0, 0, u"l'"}));
}

TEST(PortionPlan, AWholePortionIsFilledBeforeItIsEmptied) {
    auto const etapes = ChatEnGras().Prepare(3, 7, u"lion");
    ASSERT_TRUE(etapes);
    EXPECT_THAT(*etapes, ElementsAre(Attendue{1, 1, 1, u"lion"}, Attendue{1, 5, 8, u""},
                                     Attendue{1, 0, 1, u""}));
}

struct CasRefuse {
    char const* quoi;
    GenrePortion genre;
};

void PrintTo(CasRefuse const& cas, std::ostream* sortie) {
    *sortie << cas.quoi; // by default its bytes, addresses among them: a name that never stays
}

class ObstacleTest : public testing::TestWithParam<CasRefuse> {};

TEST_P(ObstacleTest, InsideTheChangedSpanRefusesTheEdit) {
    PlanDePortions plan;
    plan.Ajoute(GenrePortion::Texte, u"un cha");
    plan.Ajoute(GenrePortion::Texte, u"");
    plan.Ajoute(GetParam().genre, u"");
    plan.Ajoute(GenrePortion::Texte, u"t noir");
    std::size_t const fin = plan.DonneTexte().find(u't') + 1;
    EXPECT_FALSE(plan.Prepare(3, fin, u"lion")) << GetParam().quoi;
    EXPECT_FALSE(plan.PeutModifier(3, fin)) << GetParam().quoi;
}

TEST_P(ObstacleTest, BesideTheChangedSpanLetsTheEditThrough) {
    PlanDePortions plan;
    plan.Ajoute(GenrePortion::Texte, u"un cha");
    plan.Ajoute(GetParam().genre, u"");
    plan.Ajoute(GenrePortion::Texte, u"t noir");
    EXPECT_TRUE(plan.Prepare(3, 6, u"cho")) << GetParam().quoi;
    EXPECT_TRUE(plan.PeutModifier(3, 6)) << GetParam().quoi;
    // A range around it, too, as long as only letters on one side differ.
    std::u16string const entier = plan.DonneTexte();
    EXPECT_TRUE(plan.Prepare(0, entier.size(), u"le" + entier.substr(2))) << GetParam().quoi;
}

INSTANTIATE_TEST_SUITE_P(Kinds, ObstacleTest,
                         testing::Values(CasRefuse{"Field", GenrePortion::Substitut},
                                         CasRefuse{"CommentAnchor", GenrePortion::Ancre},
                                         CasRefuse{"FrameAnchor", GenrePortion::Attache},
                                         CasRefuse{"FixedLetters", GenrePortion::Fixe},
                                         CasRefuse{"TrackedDeletion", GenrePortion::Exclue}),
                         [](auto const& cas) { return std::string(cas.param.quoi); });

TEST(PortionPlan, AnEditCannotEmptyWhatABookmarkSpans) {
    PlanDePortions plan;
    plan.Ajoute(GenrePortion::Texte, u"un ");
    plan.Ajoute(GenrePortion::Limite);
    plan.Ajoute(GenrePortion::Texte, u"chat ");
    plan.Ajoute(GenrePortion::Limite);
    plan.Ajoute(GenrePortion::Texte, u"noir");
    EXPECT_FALSE(plan.Prepare(3, 8, u""));
    EXPECT_TRUE(plan.Prepare(3, 8, u"chien "));
    EXPECT_TRUE(plan.Prepare(0, 12, u"le chien gris"));
}

TEST(PortionPlan, ADeletionNeverStartsOnABookmarkWithoutExtent) {
    PlanDePortions plan;
    plan.Ajoute(GenrePortion::Texte, u"un ");
    plan.Ajoute(GenrePortion::Repere);
    plan.Ajoute(GenrePortion::Texte, u"chat");
    EXPECT_FALSE(plan.Prepare(3, 7, u"lion"));
    EXPECT_FALSE(plan.PeutModifier(3, 7));
    EXPECT_TRUE(plan.Prepare(3, 7, u"chut"));
    EXPECT_TRUE(plan.Prepare(0, 3, u"le "));
}

TEST(PortionPlan, ABookmarkWithoutExtentBesideAFramesAnchorIsSeenAcrossIt) {
    PlanDePortions plan;
    plan.Ajoute(GenrePortion::Texte, u"un ");
    plan.Ajoute(GenrePortion::Repere);
    plan.Ajoute(GenrePortion::Attache);
    plan.Ajoute(GenrePortion::Texte, u"chat");
    EXPECT_FALSE(plan.Prepare(3, 7, u"lion"));
    EXPECT_FALSE(plan.PeutModifier(3, 7));
    EXPECT_TRUE(plan.Prepare(3, 7, u"chut"));
}

TEST(PortionPlan, AFieldsLettersAreReadAndChangedInsideOfIt) {
    PlanDePortions plan;
    plan.Ajoute(GenrePortion::Texte, u"voir ");
    plan.Ajoute(GenrePortion::Champ, u"un lien");
    plan.Ajoute(GenrePortion::Texte, u".");
    EXPECT_EQ(plan.DonneTexte(), u"voir un lien.");
    EXPECT_TRUE(plan.PeutModifier(8, 12));
    struct {
        std::size_t debut, fin;
        char16_t const* texte;
        char16_t const* champ;
    } const cas[] = {{8, 12, u"liens", u"un liens"},
                     {5, 7, u"aun", u"aun lien"},
                     {5, 12, u"le site", u"le site"},
                     {9, 9, u"x", u"un lxien"},
                     {5, 8, u"", u"lien"}};
    for (auto const& un : cas) {
        auto const etapes = plan.Prepare(un.debut, un.fin, un.texte);
        ASSERT_TRUE(etapes);
        ASSERT_FALSE(etapes->empty());
        for (EtapeEdition const& etape : *etapes) {
            EXPECT_EQ(etape.portion, 1U);
        }
        EXPECT_EQ(etapes->back().DonneApres(), un.champ);
    }
}

TEST(PortionPlan, AFieldIsNeverEmptiedAndWhatIsTypedBesideItStandsOutside) {
    PlanDePortions plan;
    plan.Ajoute(GenrePortion::Texte, u"a ");
    plan.Ajoute(GenrePortion::Champ, u"lien");
    EXPECT_FALSE(plan.Prepare(2, 6, u""));
    auto const avant = plan.Prepare(2, 2, u"x");
    ASSERT_TRUE(avant);
    EXPECT_THAT(*avant, ElementsAre(Attendue{0, 2, 2, u"x"}));
    EXPECT_FALSE(plan.Prepare(6, 6, u"x")); // nothing to put it into
}

TEST(PortionPlan, NothingOfAFixedParagraphCanBeChanged) {
    PlanDePortions plan = ChatEnGras();
    plan.Fige();
    EXPECT_FALSE(plan.PeutModifier(0, 2));
    EXPECT_FALSE(plan.Prepare(0, 2, u"le"));
    auto const rien = plan.Prepare(0, 2, u"un");
    ASSERT_TRUE(rien);
    EXPECT_THAT(*rien, IsEmpty());
}

TEST(PortionPlan, TheFillerAndControlCharactersNeverGoIntoADocument) {
    PlanDePortions const plan = ChatEnGras();
    EXPECT_FALSE(plan.Prepare(3, 7, u"\u0007"));
    EXPECT_FALSE(plan.Prepare(3, 7, std::u16string(1, u'\0')));
    EXPECT_FALSE(plan.Prepare(3, 7, u"a\rb"));
    EXPECT_FALSE(plan.Prepare(3, 7, std::u16string{u'a', 0xDC00}));
    EXPECT_TRUE(plan.Prepare(3, 7, u"a\nb\tc"));
}

TEST(PortionPlan, AnEmptyParagraphTakesItsFirstLetters) {
    PlanDePortions plan;
    plan.Ajoute(GenrePortion::Texte, u"");
    auto const etapes = plan.Prepare(0, 0, u"a");
    ASSERT_TRUE(etapes);
    EXPECT_THAT(*etapes, ElementsAre(Attendue{0, 0, 0, u"a"}));
    EXPECT_FALSE(PlanDePortions().Prepare(0, 0, u"a"));
}

TEST(PortionPlan, ASurrogatePairIsNeverParted) {
    PlanDePortions plan;
    plan.Ajoute(GenrePortion::Texte, u"a\U0001F600b");
    auto const etapes = plan.Prepare(0, 4, u"a\U0001F601b");
    ASSERT_TRUE(etapes);
    EXPECT_THAT(*etapes, ElementsAre(Attendue{0, 3, 3, u"\U0001F601"}, Attendue{0, 1, 3, u""}));
}
