// SPDX-License-Identifier: MPL-2.0
#include "commun/TravailAPauses.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

using extension::TravailAPauses;

namespace {

using Pause = TravailAPauses::Pause;

/// Pauses at the bottom of so many calls.
void Descends(int profondeur, Pause const& pause, std::vector<int>& vus) {
    char volatile bourrage[4096] = {};
    bourrage[0] = 1;
    if (profondeur > 0) {
        Descends(profondeur - 1, pause, vus);
    } else {
        pause();
    }
    vus.push_back(profondeur + bourrage[0] - 1);
}

} // namespace

TEST(WorkWithPauses, GoesOnWhereItWasLeft) {
    std::string dit;
    TravailAPauses travail([&](Pause const& pause) {
        for (char const lettre : {'a', 'b', 'c'}) {
            dit += lettre;
            pause();
        }
    });
    EXPECT_EQ(dit, "");
    EXPECT_FALSE(travail.Avance());
    EXPECT_EQ(dit, "a");
    EXPECT_FALSE(travail.Avance());
    EXPECT_FALSE(travail.Avance());
    EXPECT_EQ(dit, "abc");
    EXPECT_TRUE(travail.Avance());
    EXPECT_TRUE(travail.Avance()); // and stays done
}

TEST(WorkWithPauses, IsLeftFromWithinAThousandCalls) {
    std::vector<int> vus;
    TravailAPauses travail([&](Pause const& pause) { Descends(1'000, pause, vus); });
    EXPECT_FALSE(travail.Avance());
    EXPECT_TRUE(vus.empty());
    EXPECT_TRUE(travail.Avance());
    EXPECT_EQ(vus.size(), 1'001U);
}

TEST(WorkWithPauses, ThrowsWhatItsWorkThrowsAndIsDoneThen) {
    TravailAPauses travail([](Pause const& pause) {
        pause();
        throw std::runtime_error("au milieu");
    });
    EXPECT_FALSE(travail.Avance());
    EXPECT_THROW(travail.Avance(), std::runtime_error);
    EXPECT_TRUE(travail.Avance());
}

TEST(WorkWithPauses, CatchesAndPausesAsOftenAsItLikes) {
    int prises = 0;
    TravailAPauses travail([&](Pause const& pause) {
        for (int i = 0; i < 3; ++i) {
            try {
                throw std::runtime_error("prise");
            } catch (std::runtime_error const&) {
                ++prises;
            }
            pause();
        }
    });
    while (!travail.Avance()) {
        EXPECT_THROW(throw std::logic_error("dehors"), std::logic_error);
    }
    EXPECT_EQ(prises, 3);
}

TEST(WorkWithPauses, LeftForGoodIsTakenApart) {
    auto const tenu = std::make_shared<int>(1);
    std::optional<TravailAPauses> travail;
    travail.emplace([copie = tenu](Pause const& pause) {
        std::vector<std::shared_ptr<int>> const surLaPile{copie};
        pause();
        ADD_FAILURE() << "it went on";
    });
    EXPECT_EQ(tenu.use_count(), 2);
    travail->Avance();
    EXPECT_EQ(tenu.use_count(), 3);
    travail.reset();
    EXPECT_EQ(tenu.use_count(), 1);
}

TEST(WorkWithPauses, NeverBegunIsTakenApartToo) {
    auto const tenu = std::make_shared<int>(1);
    {
        TravailAPauses const travail([copie = tenu](Pause const& /*pause*/) {});
    }
    EXPECT_EQ(tenu.use_count(), 1);
}

TEST(WorkWithPauses, OfSeveralGoesOnInAnyOrder) {
    std::string dit;
    auto const fais = [&](char lettre) {
        return [&dit, lettre](Pause const& pause) {
            dit += lettre;
            pause();
            dit += lettre;
        };
    };
    TravailAPauses un(fais('a'));
    TravailAPauses deux(fais('b'));
    un.Avance();
    deux.Avance();
    EXPECT_TRUE(un.Avance());
    EXPECT_TRUE(deux.Avance());
    EXPECT_EQ(dit, "abab");
}
