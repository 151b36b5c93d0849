// SPDX-License-Identifier: MPL-2.0
#include "partage/SelectionDite.h"

#include "partage/ErreurDuService.h"

#include <gtest/gtest.h>

#include <climits>

using compagnon::DecaleBornes;
using compagnon::Intervalle;

TEST(SelectionShift, MovesEachBoundByItsOwnDelta) {
    EXPECT_EQ(DecaleBornes({4, 8}, -4, 5, u"Les chat dort"), (Intervalle{0, 13}));
    EXPECT_EQ(DecaleBornes({4, 8}, 4, 0, u"Les chat dort"), (Intervalle{8, 8}));
    EXPECT_EQ(DecaleBornes({0, 0}, 0, 0, u""), Intervalle{});
    EXPECT_EQ(DecaleBornes({0, 3}, 3, 2, u"Un \U0001F600 la"), (Intervalle{3, 5}));
}

TEST(SelectionShift, OutOfTheTextAcrossOrIntoAPairIsRefused) {
    for (auto const& [debut, fin] : {std::pair{-1, 0},
                                     {0, 6},
                                     {0, 1},
                                     {4, 1},
                                     {4, 0},
                                     {0, -4},
                                     {INT_MIN, INT_MAX},
                                     {INT_MAX, INT_MIN},
                                     {INT_MAX, INT_MAX},
                                     {INT_MIN, INT_MIN}}) {
        try {
            DecaleBornes({0, 3}, debut, fin, u"Un \U0001F600 la");
            ADD_FAILURE() << debut << ", " << fin;
        } catch (compagnon::ErreurDuService const& erreur) {
            EXPECT_EQ(erreur.DonneCode(), contrat::Erreur::SelectionImpossible);
        }
    }
}
