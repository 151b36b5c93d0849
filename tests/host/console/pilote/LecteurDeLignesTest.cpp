// SPDX-License-Identifier: MPL-2.0
#include "console/pilote/LecteurDeLignes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

using hote::LecteurDeLignes;
using ::testing::ElementsAre;

namespace {

constexpr int kLimite = 8;

/// The lines of a stream that comes in pieces of `taille` bytes; "!" for one too long.
std::vector<std::string> Lis(std::string const& flux, std::size_t taille) {
    LecteurDeLignes lecteur(kLimite);
    std::vector<std::string> lignes;
    auto const vide = [&] {
        while (auto const ligne = lecteur.PrendsSuivante()) {
            lignes.push_back(ligne->tropLongue ? "!" : ligne->octets.toStdString());
        }
    };
    for (std::size_t i = 0; i < flux.size(); i += taille) {
        std::string const morceau = flux.substr(i, taille);
        lecteur.Ajoute(morceau.data(), morceau.size());
        vide();
    }
    lecteur.Termine();
    vide();
    return lignes;
}

class LecteurParMorceaux : public ::testing::TestWithParam<std::size_t> {};

} // namespace

TEST_P(LecteurParMorceaux, LinesAreCutWhereTheyEndHoweverTheyCome) {
    EXPECT_THAT(Lis("un\n\ndeux\n", GetParam()), ElementsAre("un", "", "deux"));
}

TEST_P(LecteurParMorceaux, WhatStandsAfterTheLastLineFeedIsALine) {
    EXPECT_THAT(Lis("un\ndeux", GetParam()), ElementsAre("un", "deux"));
    EXPECT_THAT(Lis("un\n", GetParam()), ElementsAre("un"));
}

TEST_P(LecteurParMorceaux, NothingIsNoLine) {
    EXPECT_THAT(Lis("", GetParam()), ElementsAre());
}

TEST_P(LecteurParMorceaux, ALineOfTheLimitIsReadAndOneByteMoreIsNot) {
    EXPECT_THAT(Lis("12345678\n123456789\nfin\n", GetParam()), ElementsAre("12345678", "!", "fin"));
}

TEST_P(LecteurParMorceaux, AVeryLongLineIsOneLineTooLong) {
    EXPECT_THAT(Lis(std::string(1000, 'x') + "\nfin", GetParam()), ElementsAre("!", "fin"));
    EXPECT_THAT(Lis("a\n" + std::string(1000, 'x'), GetParam()), ElementsAre("a", "!"));
}

TEST_P(LecteurParMorceaux, NulBytesAreBytesLikeOthers) {
    EXPECT_THAT(Lis(std::string("a\0b\n\0\n", 6), GetParam()),
                ElementsAre(std::string("a\0b", 3), std::string("\0", 1)));
}

INSTANTIATE_TEST_SUITE_P(Tailles, LecteurParMorceaux,
                         ::testing::Values(1, 2, 3, 7, 8, 9, 10, 4096));
