// SPDX-License-Identifier: MPL-2.0
#include "partage/Messages.h"

#include <gtest/gtest.h>

#include <cstdlib>

using compagnon::Dis;

namespace {

void MetsLangue(char const* tout, char const* messages, char const* langue) {
    ::setenv("LC_ALL", tout, 1);
    ::setenv("LC_MESSAGES", messages, 1);
    ::setenv("LANG", langue, 1);
}

} // namespace

// Each test is a process of its own: the language is looked at once.

TEST(CompanionMessages, AreFrenchInAFrenchLocale) {
    MetsLangue("", "", "fr_CA.UTF-8");
    EXPECT_EQ(Dis({"oui", "yes"}), "oui");
}

TEST(CompanionMessages, FollowLcMessagesBeforeLang) {
    MetsLangue("", "fr", "de_DE.UTF-8");
    EXPECT_EQ(Dis({"oui", "yes"}), "oui");
}

TEST(CompanionMessages, FollowLcAllBeforeEverything) {
    MetsLangue("C.UTF-8", "fr_FR", "fr_FR");
    EXPECT_EQ(Dis({"oui", "yes"}), "yes");
}

TEST(CompanionMessages, ALanguageThatOnlyBeginsLikeFrenchIsNotFrench) {
    MetsLangue("", "", "fry_NL");
    EXPECT_EQ(Dis({"oui", "yes"}), "yes");
}

TEST(CompanionMessages, ArgumentsAreFilledInOnceAndAsTheyAre) {
    MetsLangue("C", "", "");
    EXPECT_EQ(Dis({"", "{1}, {2}, {1} {3} {x}"}, {"{2}", "\xE9"}), "{2}, \xE9, {2} {3} {x}");
}

TEST(CompanionMessages, AProgramThatKnowsItsPersonGoesBeforeTheEnvironment) {
    MetsLangue("fr_FR.UTF-8", "", "");
    compagnon::MetsFrancais(false);
    EXPECT_EQ(Dis({"oui", "yes"}), "yes");
    compagnon::MetsFrancais(true);
    EXPECT_EQ(Dis({"oui", "yes"}), "oui");
}
