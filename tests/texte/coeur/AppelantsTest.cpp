// SPDX-License-Identifier: MPL-2.0
#include "coeur/Appelants.h"

#include <gtest/gtest.h>

using compagnon::Appelant;
using compagnon::Appelants;
using compagnon::TexteSuivi;

TEST(Callers, TheOneSilentLongestIsForgottenWhenThereAreTooMany) {
    Appelants appelants;
    appelants.Donne(":1.0");
    appelants.Donne(":1.1");
    for (std::size_t i = 2; i < Appelants::kMax; ++i) {
        appelants.Donne(":1." + std::to_string(i));
    }
    appelants.Donne(":1.0");
    EXPECT_EQ(appelants.Nombre(), Appelants::kMax);
    appelants.Donne(":2.0");
    EXPECT_EQ(appelants.Nombre(), Appelants::kMax);
    EXPECT_TRUE(appelants.Connait(":1.0"));
    EXPECT_FALSE(appelants.Connait(":1.1"));
    EXPECT_TRUE(appelants.Connait(":2.0"));
}

TEST(Callers, WhatIsKeptOfThemAllIsBounded) {
    Appelants appelants;
    auto const croyances = [] {
        Appelant::Croyances toutes;
        for (compagnon::NumeroZone i = 0; i < Appelants::kCroyancesMax / 4; ++i) {
            toutes.emplace(i, TexteSuivi());
        }
        return toutes;
    };
    for (int i = 0; i < 6; ++i) {
        appelants.Donne(":1." + std::to_string(i), "doc1", croyances());
    }
    EXPECT_EQ(appelants.Nombre(), 4U);
    EXPECT_FALSE(appelants.Connait(":1.1"));
    EXPECT_TRUE(appelants.Connait(":1.5"));
    EXPECT_NE(appelants.Donne(":1.5").Croyance("doc1", 0), nullptr);
}

TEST(Callers, AClosedDocumentIsForgottenByAll) {
    Appelants appelants;
    for (char const* const nom : {":1.1", ":1.2"}) {
        appelants.Donne(nom, "doc1", {{1, TexteSuivi()}});
        appelants.Donne(nom, "doc2", {{2, TexteSuivi()}});
    }
    appelants.OublieDocument("doc1");
    for (char const* const nom : {":1.1", ":1.2"}) {
        EXPECT_EQ(appelants.Donne(nom).Croyance("doc1", 1), nullptr);
        EXPECT_NE(appelants.Donne(nom).Croyance("doc2", 2), nullptr);
    }
}
