// SPDX-License-Identifier: MPL-2.0
#include "correction/Alignement.h"

#include <gtest/gtest.h>

using hote::Alignement;

namespace {

QString S(char const* utf8) {
    return QString::fromUtf8(utf8);
}

/// Where the first `mot` of `ancien` stands in `nouveau`, -1 when it cannot be told.
int Retrouve(char const* ancien, char const* mot, char const* nouveau) {
    int const debut = S(ancien).indexOf(S(mot));
    return Alignement(S(ancien), S(nouveau)).Retrouve(debut, debut + S(mot).size()).value_or(-1);
}

} // namespace

TEST(Alignement, WhatStandsBeforeAndBehindAChangeIsFound) {
    EXPECT_EQ(Retrouve("un deux trois", "un", "un deux et trois"), 0);
    EXPECT_EQ(Retrouve("un deux trois", "trois", "un deux et trois"), 11);
    EXPECT_EQ(Retrouve("un deux trois", "deux", "zéro un et deux trois"), 11);
}

TEST(Alignement, AWordBetweenTwoChangesIsFound) {
    EXPECT_EQ(Retrouve("a faute b", "faute", "xx faute yy"), 3);
}

TEST(Alignement, AChangedWordIsNotFoundInPart) {
    EXPECT_EQ(Retrouve("le chat", "chat", "le chats"), -1);
    EXPECT_EQ(Retrouve("le chat", "chat", "le achat"), -1);
    EXPECT_EQ(Retrouve("chat le chat", "le", "chat lle chat"), -1);
}

TEST(Alignement, OneOfSeveralAlikeIsNotTakenForAnother) {
    // The second "le" became "lle": the first one is no place for it.
    EXPECT_EQ(Alignement(S("le x le"), S("le x lle")).Retrouve(5, 7), std::nullopt);
    EXPECT_EQ(Alignement(S("le x le"), S("lle x le")).Retrouve(0, 2), std::nullopt);
    EXPECT_EQ(Alignement(S("le x le"), S("lle x le")).Retrouve(5, 7), 6);
}

TEST(Alignement, SeveralWordsAreFoundInOnePieceOnly) {
    EXPECT_EQ(Retrouve("une petite école ici", "petite école", "voici une petite école"), 10);
    EXPECT_EQ(Retrouve("une petite école ici", "petite école", "une petite grande école ici"), -1);
}

TEST(Alignement, AnEmptyPlaceIsHeldByItsNeighbours) {
    Alignement const alignement(S("un  deux"), S("zéro un  deux"));
    EXPECT_EQ(alignement.Retrouve(3, 3), 8);
    EXPECT_EQ(Alignement(S("un  deux"), S("un x deux")).Retrouve(3, 3), std::nullopt);
    EXPECT_EQ(Alignement(S(""), S("")).Retrouve(0, 0), 0);
    EXPECT_EQ(Alignement(S("a"), S("")).Retrouve(1, 1), std::nullopt);
}

TEST(Alignement, PairsAndMarksAreParts0fWords) {
    EXPECT_EQ(Retrouve("😀 e\u0301te\u0301", "e\u0301te\u0301", "a 😀 e\u0301te\u0301"), 5);
    EXPECT_EQ(Retrouve("ete", "ete", "e\u0301te"), -1);
}

TEST(Alignement, TheLastPlaceThatIsKnownBeforeAnother) {
    Alignement const alignement(S("un deux trois"), S("zéro un 2 trois"));
    EXPECT_EQ(alignement.RetrouveAvant(3), 8);
    EXPECT_EQ(alignement.RetrouveAvant(0), 0);
    EXPECT_EQ(alignement.RetrouveAvant(13), 15);
}

TEST(Alignement, TextsTooLongToCompareAgreeAtTheirEndsOnly) {
    QString const milieu = S("mot ").repeated(5000);
    QString const ancien = S("début a ") + milieu + S("z fin");
    QString const nouveau = S("début b ") + milieu + S("y fin");
    Alignement const alignement(ancien, nouveau);
    EXPECT_EQ(alignement.Retrouve(0, 5), 0);
    EXPECT_EQ(alignement.Retrouve(ancien.size() - 3, ancien.size()), nouveau.size() - 3);
    EXPECT_EQ(alignement.Retrouve(8, 11), std::nullopt);
}
