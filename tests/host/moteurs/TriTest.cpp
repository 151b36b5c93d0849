// SPDX-License-Identifier: MPL-2.0
#include "moteurs/Tri.h"
#include "MoteurFaux.h"

#include <gtest/gtest.h>

using namespace hote;

namespace {

std::vector<Remarque> Trie(ParagrapheAExaminer const& paragraphe, std::vector<Remarque> remarques,
                           EstRefusee const& refuse = nullptr) {
    auto const juge = [](QString const& langue) { return langue == QLatin1String("fr"); };
    return Tri(paragraphe, juge, refuse).Trie(std::move(remarques), {});
}

} // namespace

TEST(Tri, DropsRangesThatAreNotInTheText) {
    EXPECT_TRUE(Trie(Francais("abc"), {Note(-1, 2), Note(2, 2), Note(2, 1), Note(1, 4),
                                       Note(2000000000, 2000000001)})
                    .empty());
    EXPECT_EQ(Trie(Francais("abc"), {Note(0, 3)}).size(), 1U);
}

TEST(Tri, DropsRangesThatPartASurrogatePair) {
    EXPECT_TRUE(Trie(Francais("😀a"), {Note(1, 3), Note(0, 1)}).empty());
}

TEST(Tri, DropsWhatTouchesTextThatWasNotRead) {
    EXPECT_TRUE(Trie(Francais("ab\x07"
                              "cd"),
                     {Note(1, 4)})
                    .empty());
}

TEST(Tri, DropsWhatReachesIntoAnotherLanguage) {
    ParagrapheAExaminer const paragraphe{
        QStringLiteral("abcdef"), {{0, 3, QStringLiteral("fr")}, {3, 6, QStringLiteral("en")}}};
    auto const triees = Trie(paragraphe, {Note(2, 4), Note(4, 5), Note(0, 3)});
    ASSERT_EQ(triees.size(), 1U);
    EXPECT_EQ(triees[0].debut, 0);
}

TEST(Tri, KeepsOfOverlappingRemarksTheSurerThenTheShorter) {
    auto const triees = Trie(Francais("abcdefgh"), {Note(0, 4, "x", 0.5), Note(3, 5, "x", 0.9),
                                                    Note(6, 8, "x", 0.5), Note(6, 7, "y", 0.5)});
    ASSERT_EQ(triees.size(), 2U);
    EXPECT_EQ(triees[0].debut, 3);
    EXPECT_EQ(triees[1].fin, 7);
}

TEST(Tri, TakesSuggestionsThatChangeNothingOut) {
    auto remarque = Note(0, 1);
    remarque.suggestions =
        QStringList{QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("b")};
    auto const triees = Trie(Francais("a"), {remarque});
    ASSERT_EQ(triees.size(), 1U);
    EXPECT_EQ(triees[0].suggestions, QStringList(QStringLiteral("b")));
}

TEST(Tri, DropsWhatThePersonRefuses) {
    auto const refuse = [](Remarque const& remarque, ParagrapheAExaminer const& /*texte*/) {
        return remarque.regle == QLatin1String("r");
    };
    EXPECT_TRUE(Trie(Francais("abc"), {Note(0, 1)}, refuse).empty());
}
