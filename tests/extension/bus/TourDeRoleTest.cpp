// SPDX-License-Identifier: MPL-2.0
#include "bus/TourDeRole.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <string>
#include <vector>

namespace {

using Tour = extension::TourDeRole<std::string>;

/// Serves the next one to its end; "caller:element", empty where nobody waits.
std::string Sers(Tour& tour) {
    auto const suivant = tour.Suivant();
    if (!suivant) {
        return {};
    }
    tour.Retire(suivant->first);
    return suivant->first + ":" + suivant->second;
}

std::vector<std::string> SersTout(Tour& tour) {
    std::vector<std::string> servis;
    while (!tour.EstVide()) {
        servis.push_back(Sers(tour));
    }
    return servis;
}

using Servis = std::vector<std::string>;

} // namespace

TEST(TurnsOfCallers, GoToEachCallerThatWaitsHoweverMuchOneAsks) {
    Tour tour;
    for (char const* const element : {"1", "2", "3", "4"}) {
        tour.Ajoute("a", element, 0);
    }
    tour.Ajoute("b", "1", 0);
    tour.Ajoute("c", "1", 0);
    tour.Ajoute("b", "2", 0);
    EXPECT_EQ(SersTout(tour), (Servis{"a:1", "b:1", "c:1", "a:2", "b:2", "a:3", "a:4"}));
}

TEST(TurnsOfCallers, GoOnWhileTheFirstOfAQueueIsNotDoneWith) {
    Tour tour;
    tour.Ajoute("a", "long", 0);
    tour.Ajoute("a", "suite", 0);
    tour.Ajoute("b", "1", 0);
    EXPECT_EQ(tour.Suivant()->second, "long");
    EXPECT_EQ(Sers(tour), "b:1");
    EXPECT_EQ(tour.Suivant()->second, "long");
    tour.Retire("a");
    EXPECT_EQ(Sers(tour), "a:suite");
    EXPECT_TRUE(tour.EstVide());
}

TEST(TurnsOfCallers, WhoComesAnewWaitsForThoseWhoAreThere) {
    Tour tour;
    tour.Ajoute("a", "1", 0);
    tour.Ajoute("a", "2", 0);
    EXPECT_EQ(Sers(tour), "a:1");
    tour.Ajoute("b", "1", 0);
    EXPECT_EQ(Sers(tour), "a:2");
    tour.Ajoute("a", "3", 0);
    EXPECT_EQ(SersTout(tour), (Servis{"b:1", "a:3"}));
}

TEST(TurnsOfCallers, RefuseWhoHasTooManyWaitingAndNobodyElse) {
    Tour tour({3, 1'000});
    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(tour.Ajoute("a", "x", 1));
    }
    EXPECT_FALSE(tour.Ajoute("a", "de trop", 1));
    EXPECT_TRUE(tour.Ajoute("b", "x", 1));
    Sers(tour);
    EXPECT_TRUE(tour.Ajoute("a", "la place est libre", 1));
    EXPECT_EQ(SersTout(tour).size(), 4U);
}

TEST(TurnsOfCallers, RefuseWhoHasTooManyBytesWaitingButForALoneOne) {
    Tour tour({100, 1'000});
    EXPECT_TRUE(tour.Ajoute("a", "enorme", 5'000));
    EXPECT_FALSE(tour.Ajoute("a", "petit", 1));
    Sers(tour);
    EXPECT_TRUE(tour.Ajoute("a", "x", 600));
    EXPECT_FALSE(tour.Ajoute("a", "x", 401));
    EXPECT_TRUE(tour.Ajoute("a", "x", 400));
    tour.Impose("a", "quoi qu'il en soit", 5'000);
    EXPECT_EQ(SersTout(tour).back(), "a:quoi qu'il en soit");
}

TEST(TurnsOfCallers, EmptiedGiveBackAllThatWaits) {
    Tour tour;
    tour.Ajoute("a", "1", 0);
    tour.Ajoute("b", "2", 0);
    tour.Ajoute("a", "3", 0);
    auto restants = tour.Vide();
    std::sort(restants.begin(), restants.end());
    EXPECT_EQ(restants, (std::deque<std::string>{"1", "2", "3"}));
    EXPECT_TRUE(tour.EstVide());
    EXPECT_FALSE(tour.Suivant());
    tour.Retire("a"); // whose call was under way when all was given back
}
