// SPDX-License-Identifier: MPL-2.0
#include "Positions.h"

#include <gtest/gtest.h>

#include <climits>

namespace {

TEST(Positions, SumsAndDifferencesWrapRound) {
    EXPECT_EQ(5, positions::Somme(2, 3));
    EXPECT_EQ(INT_MIN, positions::Somme(INT_MAX, 1));
    EXPECT_EQ(INT_MAX, positions::Somme(INT_MIN, -1));
    EXPECT_EQ(0, positions::Somme(INT_MIN, INT_MIN));
    EXPECT_EQ(-1, positions::Difference(2, 3));
    EXPECT_EQ(INT_MAX, positions::Difference(INT_MIN, 1));
    EXPECT_EQ(INT_MIN, positions::Difference(INT_MAX, -1));
    EXPECT_EQ(INT_MIN, positions::Difference(0, INT_MIN));
}

} // namespace
