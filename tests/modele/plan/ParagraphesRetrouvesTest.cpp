// SPDX-License-Identifier: MPL-2.0
#include "modele/ParagraphesRetrouves.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using compagnon::RetrouveParagraphes;
using testing::ElementsAre;
using Origine = std::optional<std::size_t>;

namespace {
Origine const kNouveau = std::nullopt;
} // namespace

TEST(ParagraphAlignment, TheSameParagraphsAreThemselves) {
    EXPECT_THAT(RetrouveParagraphes({u"a", u"a", u"b"}, {u"a", u"a", u"b"}),
                ElementsAre(Origine(0), Origine(1), Origine(2)));
}

TEST(ParagraphAlignment, TheOneThatChangedIsKnownByTheOthers) {
    EXPECT_THAT(RetrouveParagraphes({u"a", u"b", u"c"}, {u"a", u"x", u"c"}),
                ElementsAre(Origine(0), Origine(1), Origine(2)));
}

TEST(ParagraphAlignment, ParagraphsAroundANewOneKeepTheirPlace) {
    EXPECT_THAT(RetrouveParagraphes({u"a", u"b"}, {u"a", u"new", u"b"}),
                ElementsAre(Origine(0), kNouveau, Origine(1)));
}

TEST(ParagraphAlignment, OfEqualNeighboursWithANewOneNoneIsKnown) {
    EXPECT_THAT(RetrouveParagraphes({u"x", u"a", u"a", u"y"}, {u"x", u"a", u"a", u"a", u"y"}),
                ElementsAre(Origine(0), kNouveau, kNouveau, kNouveau, Origine(3)));
}

TEST(ParagraphAlignment, TwoThatChangedPlacesAreNotTakenForEachOther) {
    EXPECT_THAT(RetrouveParagraphes({u"a", u"b"}, {u"b", u"a"}), ElementsAre(kNouveau, kNouveau));
}

TEST(ParagraphAlignment, FromNothingEverythingIsNew) {
    EXPECT_THAT(RetrouveParagraphes({}, {u"a"}), ElementsAre(kNouveau));
    EXPECT_THAT(RetrouveParagraphes({u"a"}, {}), testing::IsEmpty());
}
