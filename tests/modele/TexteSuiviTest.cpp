// SPDX-License-Identifier: MPL-2.0
#include "Suivis.h"

#include <gtest/gtest.h>

#include <climits>

using compagnon::Intervalle;
using compagnon::Localisation;
using compagnon::Refus;
using compagnon::TextePartage;
using compagnon::TexteSuivi;

namespace {

Localisation Trouvee(std::int32_t debut, std::int32_t fin) {
    return {Refus::Aucun, {debut, fin}};
}

Localisation Refusee(Refus raison) {
    return {raison, {}};
}

} // namespace

namespace compagnon {
bool operator==(Localisation const& a, Localisation const& b) {
    return a.refus == b.refus && a.plage == b.plage;
}
void PrintTo(Localisation const& l, std::ostream* sortie) {
    *sortie << "{refusal " << static_cast<int>(l.refus) << ", " << l.plage.debut << ".."
            << l.plage.fin << "}";
}
} // namespace compagnon

TEST(FollowedText, EveryRangeOfAnUnchangedTextStandsWhereTheHostPutsIt) {
    TexteSuivi const suivi = Suivi(u"Les chat");
    EXPECT_EQ(suivi.Localise({4, 8}, u"Les chat"), Trouvee(4, 8));
    EXPECT_EQ(suivi.Localise({0, 8}, u"Les chat"), Trouvee(0, 8));
    EXPECT_EQ(suivi.Localise({0, 0}, u"Les chat"), Trouvee(0, 0));
    EXPECT_EQ(suivi.Localise({8, 8}, u"Les chat"), Trouvee(8, 8));
    EXPECT_EQ(Suivi(u"").Localise({0, 0}, u""), Trouvee(0, 0));
}

TEST(FollowedText, NothingIsFoundInAZoneThatWasNeverGiven) {
    TexteSuivi suivi;
    EXPECT_EQ(suivi.Localise({0, 0}, u""), Refusee(Refus::Inconnu));
    suivi.Donne(Partage(u"a"));
    suivi.Oublie();
    EXPECT_EQ(suivi.Localise({0, 1}, u"a"), Refusee(Refus::Inconnu));
}

TEST(FollowedText, OnlyTheTextThatTheHostBelievesIsConfirmed) {
    TexteSuivi suivi = Suivi(u"Les chat");
    EXPECT_FALSE(suivi.Confirme(u"Les chats"));
    EXPECT_FALSE(suivi.Confirme(u"Les"));
    EXPECT_EQ(suivi.DonneCroyance(), u"Les chat");
    EXPECT_TRUE(suivi.Confirme(u"Les chat"));
    EXPECT_FALSE(TexteSuivi().Confirme(u""));
}

TEST(FollowedText, AConfirmedTextIsCertainAgainAfterARefusal) {
    TexteSuivi suivi = Suivi(u"Les chat noir");
    suivi.NoteRefus({4, 8});
    EXPECT_EQ(suivi.Localise({9, 13}, u"Les chat noir").refus, Refus::Incertain);
    EXPECT_TRUE(suivi.Confirme(u"Les chat noir"));
    EXPECT_EQ(suivi.Localise({9, 13}, u"Les chat noir"), Trouvee(9, 13));
}

TEST(FollowedText, OffsetsThatAreNoRangeOfTheTextAreRefused) {
    TexteSuivi const suivi = Suivi(u"chat");
    for (Intervalle const plage :
         {Intervalle{-1, 2}, Intervalle{0, 5}, Intervalle{5, 5}, Intervalle{3, 2},
          Intervalle{INT_MIN, INT_MAX}, Intervalle{INT_MAX, INT_MIN}, Intervalle{INT_MAX, INT_MAX},
          Intervalle{INT_MIN, INT_MIN}, Intervalle{0, INT_MAX}, Intervalle{INT_MIN, 0}}) {
        EXPECT_EQ(suivi.Localise(plage, u"chat"), Refusee(Refus::HorsLimites));
        EXPECT_EQ(suivi.Localise(plage, u"un chat"), Refusee(Refus::HorsLimites));
    }
}

TEST(FollowedText, ABoundInsideASurrogatePairIsRefused) {
    TexteSuivi const suivi = Suivi(u"a\U0001F600b");
    EXPECT_EQ(suivi.Localise({0, 2}, u"a\U0001F600b"), Refusee(Refus::CoupePaire));
    EXPECT_EQ(suivi.Localise({2, 4}, u"a\U0001F600b"), Refusee(Refus::CoupePaire));
    EXPECT_EQ(suivi.Localise({2, 2}, u"a\U0001F600b"), Refusee(Refus::CoupePaire));
    EXPECT_EQ(suivi.Localise({1, 3}, u"a\U0001F600b"), Trouvee(1, 3));
}

TEST(FollowedText, ARangeBeforeWhatWasTypedStays) {
    TexteSuivi const suivi = Suivi(u"Les chat dort");
    EXPECT_EQ(suivi.Localise({4, 8}, u"Les chat noir dort"), Trouvee(4, 8));
    EXPECT_EQ(suivi.Localise({4, 8}, u"Les chat do"), Trouvee(4, 8));
    // The "t" that is left could be the last one of "dort".
    EXPECT_EQ(suivi.Localise({4, 8}, u"Les chat"), Refusee(Refus::Incertain));
}

TEST(FollowedText, ARangeAfterWhatWasTypedMovesWithItsLetters) {
    TexteSuivi const suivi = Suivi(u"Les chat dort");
    EXPECT_EQ(suivi.Localise({9, 13}, u"Les petits chat dort"), Trouvee(16, 20));
    EXPECT_EQ(suivi.Localise({4, 8}, u"chat dort"), Trouvee(0, 4));
    EXPECT_EQ(suivi.Localise({13, 13}, u"Oui: Les chat dort"), Trouvee(18, 18));
}

TEST(FollowedText, ARangeInWhichSomeoneTypedIsRefused) {
    TexteSuivi const suivi = Suivi(u"Les chat dort");
    EXPECT_EQ(suivi.Localise({4, 8}, u"Les chait dort"), Refusee(Refus::Incertain));
    EXPECT_EQ(suivi.Localise({4, 8}, u"Les dort"), Refusee(Refus::Incertain));
    EXPECT_EQ(suivi.Localise({4, 13}, u"Les chat noir dort"), Refusee(Refus::Incertain));
    EXPECT_EQ(suivi.Localise({0, 13}, u""), Refusee(Refus::Incertain));
}

TEST(FollowedText, WordsThatStandTwiceAreNotMistakenForEachOther) {
    // "chat " was added: before, after, or between its copies, nobody can tell.
    TexteSuivi const suivi = Suivi(u"chat chat ");
    EXPECT_EQ(suivi.Localise({0, 4}, u"chat chat chat "), Refusee(Refus::Incertain));
    EXPECT_EQ(suivi.Localise({5, 9}, u"chat chat chat "), Refusee(Refus::Incertain));
    EXPECT_EQ(suivi.Localise({0, 4}, u"chat "), Refusee(Refus::Incertain));
    EXPECT_EQ(suivi.Localise({5, 9}, u"chat "), Refusee(Refus::Incertain));
}

TEST(FollowedText, OfRepeatedLettersOnlyThoseThatCannotBeTheEditedOnesAreFound) {
    // One "l" of "aller" was doubled: either could be the new one.
    TexteSuivi const suivi = Suivi(u"aller");
    EXPECT_EQ(suivi.Localise({0, 1}, u"alller"), Trouvee(0, 1));
    EXPECT_EQ(suivi.Localise({1, 2}, u"alller"), Refusee(Refus::Incertain));
    EXPECT_EQ(suivi.Localise({2, 3}, u"alller"), Refusee(Refus::Incertain));
    EXPECT_EQ(suivi.Localise({3, 5}, u"alller"), Trouvee(4, 6));
    EXPECT_EQ(suivi.Localise({0, 1}, u"aler"), Trouvee(0, 1));
    EXPECT_EQ(suivi.Localise({1, 2}, u"aler"), Refusee(Refus::Incertain));
    EXPECT_EQ(suivi.Localise({3, 5}, u"aler"), Trouvee(2, 4));
}

TEST(FollowedText, AnInsertionPointBesideWhatWasTypedIsRefused) {
    TexteSuivi const suivi = Suivi(u"ab");
    EXPECT_EQ(suivi.Localise({1, 1}, u"aXb"), Refusee(Refus::Incertain));
    EXPECT_EQ(suivi.Localise({0, 0}, u"Xab"), Refusee(Refus::Incertain));
    EXPECT_EQ(suivi.Localise({2, 2}, u"abX"), Refusee(Refus::Incertain));
    EXPECT_EQ(suivi.Localise({0, 0}, u"aXb"), Trouvee(0, 0));
    EXPECT_EQ(suivi.Localise({2, 2}, u"aXb"), Trouvee(3, 3));
    EXPECT_EQ(Suivi(u"").Localise({0, 0}, u"X"), Refusee(Refus::Incertain));
}

TEST(FollowedText, ARangeThatTouchesWhatWasTypedKeepsItsLetters) {
    TexteSuivi const suivi = Suivi(u"ab");
    EXPECT_EQ(suivi.Localise({0, 1}, u"aXb"), Trouvee(0, 1));
    EXPECT_EQ(suivi.Localise({1, 2}, u"aXb"), Trouvee(2, 3));
}

TEST(FollowedText, AnAccentTypedOnTheLastLetterMakesItAnother) {
    TexteSuivi const suivi = Suivi(u"un cafe noir");
    EXPECT_EQ(suivi.Localise({3, 7}, u"un cafe\u0301 noir"), Refusee(Refus::Incertain));
    EXPECT_EQ(suivi.Localise({8, 12}, u"un cafe\u0301 noir"), Trouvee(9, 13));
    EXPECT_EQ(Suivi(u"ab").Localise({1, 2}, u"a\u200Db"), Refusee(Refus::Incertain));
}

TEST(FollowedText, ABaseLetterAloneCanBeCorrectedUnderItsMark) {
    TexteSuivi const suivi = Suivi(u"cafe\u0301");
    EXPECT_EQ(suivi.Localise({3, 4}, u"cafe\u0301"), Trouvee(3, 4));
    EXPECT_EQ(suivi.Localise({3, 4}, u"un cafe\u0301"), Trouvee(6, 7));
}

TEST(FollowedText, ARangeMustHoldTheExpectedText) {
    TexteSuivi const suivi = Suivi(u"Les chat");
    EXPECT_EQ(suivi.Localise({4, 8}, u"Les chat", u"chat"), Trouvee(4, 8));
    EXPECT_EQ(suivi.Localise({4, 8}, u"Les chat", u"chats"), Refusee(Refus::Different));
    EXPECT_EQ(suivi.Localise({4, 8}, u"Les chat", u""), Refusee(Refus::Different));
    EXPECT_EQ(suivi.Localise({4, 4}, u"Les chat", u""), Trouvee(4, 4));
    EXPECT_EQ(suivi.Localise({4, 9}, u"Les chat", u"chat"), Refusee(Refus::HorsLimites));
}

TEST(FollowedText, ACorrectionChangesBeliefAndDocumentTogether) {
    TexteSuivi suivi = Suivi(u"Les chat dort");
    TextePartage document = Partage(u"Les chat dort");
    EXPECT_EQ(Corrige(suivi, {4, 8}, u"chats", document), Trouvee(4, 8));
    EXPECT_EQ(Corrige(suivi, {10, 14}, u"dorment", document), Trouvee(10, 14));
    EXPECT_EQ(*document, u"Les chats dorment");
    EXPECT_EQ(suivi.DonneCroyance(), u"Les chats dorment");
}

TEST(FollowedText, CorrectionsGoOnAroundWhatTheOtherTyped) {
    TexteSuivi suivi = Suivi(u"Les chat dort ici");
    TextePartage document = Partage(u"Oui. Les chat dort ici");
    EXPECT_EQ(Corrige(suivi, {4, 8}, u"chats", document), Trouvee(9, 13));
    EXPECT_EQ(suivi.DonneCroyance(), u"Les chats dort ici");
    EXPECT_EQ(Corrige(suivi, {10, 14}, u"dorment", document), Trouvee(15, 19));
    EXPECT_EQ(*document, u"Oui. Les chats dorment ici");
    EXPECT_EQ(suivi.DonneCroyance(), u"Les chats dorment ici");
}

TEST(FollowedText, ARefusedCorrectionChangesNoDocumentAndIsOnlySafeBeforeIt) {
    // The host may hold "un long chat dort" now, or not: only what stands before is sure.
    TexteSuivi suivi = Suivi(u"un chat dort");
    TextePartage document = Partage(u"un chXat dort");
    EXPECT_EQ(Corrige(suivi, {3, 7}, u"long chat", document), Refusee(Refus::Incertain));
    EXPECT_EQ(*document, u"un chXat dort");
    EXPECT_EQ(suivi.Localise({8, 12}, *document), Refusee(Refus::Incertain));
    EXPECT_EQ(suivi.Localise({0, 2}, *document), Trouvee(0, 2));
    EXPECT_EQ(Corrige(suivi, {0, 2}, u"mon", document), Trouvee(0, 2));
    EXPECT_EQ(suivi.Localise({0, 3}, *document), Trouvee(0, 3));
    EXPECT_EQ(suivi.Localise({0, 5}, *document), Refusee(Refus::Incertain));
    suivi.Donne(document);
    EXPECT_EQ(suivi.Localise({10, 14}, *document), Trouvee(10, 14));
}

TEST(FollowedText, ARefusedCorrectionWithAbsurdOffsetsLeavesNothingSure) {
    TexteSuivi suivi = Suivi(u"un chat");
    TextePartage document = Partage(u"un chat");
    EXPECT_FALSE(Corrige(suivi, {INT_MIN, INT_MAX}, u"x", document));
    EXPECT_EQ(suivi.Localise({0, 2}, *document), Refusee(Refus::Incertain));

    TexteSuivi auDela = Suivi(u"un chat");
    EXPECT_FALSE(Corrige(auDela, {7, 9}, u"x", document));
    EXPECT_EQ(auDela.Localise({0, 7}, *document), Trouvee(0, 7));
    EXPECT_EQ(*document, u"un chat");
}

TEST(FollowedText, SeveralHostsOfOneTextAreFollowedEachForItself) {
    TextePartage document = Partage(u"un chat dort");
    TexteSuivi premier;
    TexteSuivi second;
    premier.Donne(document);
    second.Donne(document);
    EXPECT_TRUE(Corrige(premier, {0, 2}, u"mon", document));
    EXPECT_EQ(second.DonneCroyance(), u"un chat dort");
    EXPECT_EQ(Corrige(second, {8, 12}, u"mange", document), Trouvee(9, 13));
    EXPECT_EQ(*document, u"mon chat mange");
    EXPECT_EQ(second.Localise({0, 2}, *document), Refusee(Refus::Incertain));
}
