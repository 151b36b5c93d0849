// SPDX-License-Identifier: MPL-2.0
#include "modele/PlagesDeStyle.h"

#include "TirageDeTextes.h"

#include <gtest/gtest.h>

using compagnon::Intervalle;
using compagnon::PlageDeStyle;
using compagnon::PlagesDeStyle;

namespace {

// The model: one style a unit.
using Styles = std::vector<std::uint16_t>;

PlagesDeStyle Plages(Styles const& styles) {
    PlagesDeStyle plages;
    for (std::size_t i = 0; i < styles.size(); ++i) {
        auto const debut = static_cast<std::int32_t>(i);
        EXPECT_TRUE(plages.Ajoute(debut, debut + 1, styles[i]));
    }
    return plages;
}

void Remplace(Styles& styles, Intervalle plage, std::size_t longueur) {
    std::uint16_t style = 0;
    if (plage.EstVide() && plage.debut > 0) {
        style = styles[plage.DonneDebut() - 1];
    } else if (plage.DonneDebut() < styles.size()) {
        style = styles[plage.DonneDebut()];
    }
    auto const debut = styles.begin() + plage.debut;
    auto const suite = styles.erase(debut, styles.begin() + plage.fin);
    styles.insert(suite, longueur, style);
}

} // namespace

TEST(StyleRuns, NeighboursThatTouchAndAreEqualBecomeOne) {
    PlagesDeStyle plages;
    EXPECT_TRUE(plages.Ajoute(0, 3, 1));
    EXPECT_TRUE(plages.Ajoute(3, 5, 1));
    EXPECT_TRUE(plages.Ajoute(5, 6, 2));
    EXPECT_TRUE(plages.Ajoute(8, 9, 2));
    EXPECT_EQ(plages.Donne(), (std::vector<PlageDeStyle>{{0, 5, 1}, {5, 6, 2}, {8, 9, 2}}));
}

TEST(StyleRuns, InTheMainLanguageLoseItsNumberAndOthersKeepTheirs) {
    constexpr std::uint16_t kUn = 1 << 8;
    constexpr std::uint16_t kDeux = 2 << 8;
    std::vector<PlageDeStyle> const plages{{0, 3, kUn}, {3, 5, kUn | 1}, {5, 6, kDeux | 1},
                                           {6, 8, 1},   {8, 9, kUn | 1}, {9, 11, kUn}};
    EXPECT_EQ(compagnon::RelativesA(1, plages),
              (std::vector<PlageDeStyle>{{3, 5, 1}, {5, 6, kDeux | 1}, {6, 9, 1}}));
    EXPECT_EQ(compagnon::RelativesA(0, plages), plages);
    EXPECT_TRUE(compagnon::RelativesA(1, {{0, 3, kUn}}).empty());
}

TEST(StyleRuns, EmptyOnesAndThoseWithoutStyleAddNothing) {
    PlagesDeStyle plages;
    EXPECT_TRUE(plages.Ajoute(4, 4, 1));
    EXPECT_TRUE(plages.Ajoute(5, 4, 1));
    EXPECT_TRUE(plages.Ajoute(0, 9, 0));
    EXPECT_TRUE(plages.Donne().empty());
}

TEST(StyleRuns, OneThatOverlapsTheLastIsRefused) {
    PlagesDeStyle plages;
    EXPECT_TRUE(plages.Ajoute(0, 5, 1));
    EXPECT_FALSE(plages.Ajoute(4, 6, 2));
    EXPECT_EQ(plages.Donne(), (std::vector<PlageDeStyle>{{0, 5, 1}}));
}

TEST(StyleRuns, FollowEveryEditAsOneStyleAUnitWould) {
    Hasard hasard(77);
    for (int tour = 0; tour < 20000; ++tour) {
        Styles styles(hasard.Jusqua(10));
        for (std::uint16_t& style : styles) {
            style = static_cast<std::uint16_t>(hasard.Jusqua(2));
        }
        PlagesDeStyle plages = Plages(styles);
        for (int edition = 0; edition < 5; ++edition) {
            auto const debut = static_cast<std::int32_t>(hasard.Jusqua(styles.size()));
            auto const fin = debut + static_cast<std::int32_t>(hasard.Jusqua(
                                         styles.size() - static_cast<std::size_t>(debut)));
            std::size_t const longueur = hasard.Jusqua(3);
            plages.Remplace({debut, fin}, longueur);
            Remplace(styles, {debut, fin}, longueur);
            ASSERT_EQ(plages.Donne(), Plages(styles).Donne());
        }
    }
}
