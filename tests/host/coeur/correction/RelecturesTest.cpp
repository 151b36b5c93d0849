// SPDX-License-Identifier: MPL-2.0
#include "correction/Relectures.h"

#include <gtest/gtest.h>

using hote::Relectures;

TEST(Relectures, TheFirstRefusalIsWorthAReading) {
    EXPECT_TRUE(Relectures().Demande());
}

TEST(Relectures, EachVainReadingDoublesTheRefusalsUpToTheNext) {
    Relectures relectures;
    int lectures = 0;
    for (int refus = 0; refus < 1000; ++refus) {
        if (relectures.Demande()) {
            ++lectures;
            relectures.Apprends(false);
        }
    }
    EXPECT_EQ(lectures, 9); // after 1, 3, 7, … 511 refusals
}

TEST(Relectures, AChangeOrASuccessMakesTheNextRefusalCountAgain) {
    Relectures relectures;
    EXPECT_TRUE(relectures.Demande());
    relectures.Apprends(false);
    EXPECT_FALSE(relectures.Demande());
    relectures.ApprendsSucces();
    EXPECT_TRUE(relectures.Demande());
    relectures.Apprends(true);
    EXPECT_TRUE(relectures.Demande());
}

TEST(Relectures, ADocumentThatAlwaysChangesIsNotReadForEver) {
    Relectures relectures;
    int lectures = 0;
    for (int refus = 0; refus < 100000; ++refus) {
        if (relectures.Demande()) {
            ++lectures;
            relectures.Apprends(true);
        }
    }
    EXPECT_EQ(lectures, 1000);
}
