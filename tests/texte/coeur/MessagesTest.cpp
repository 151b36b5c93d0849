// SPDX-License-Identifier: MPL-2.0
#include "coeur/MessagesTexte.h"

#include "coeur/OptionsBureau.h"

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

TEST(OfficeMessages, AreFrenchInAFrenchLocale) {
    MetsLangue("", "", "fr_CA.UTF-8");
    EXPECT_EQ(Dis({"oui", "yes"}), "oui");
    EXPECT_EQ(compagnon::DonneAide().substr(0, 7), "Usage :");
}

TEST(OfficeMessages, FollowLcMessagesBeforeLang) {
    MetsLangue("", "fr", "de_DE.UTF-8");
    EXPECT_EQ(Dis({"oui", "yes"}), "oui");
}

TEST(OfficeMessages, FollowLcAllBeforeEverything) {
    MetsLangue("C.UTF-8", "fr_FR", "fr_FR");
    EXPECT_EQ(Dis({"oui", "yes"}), "yes");
    EXPECT_EQ(compagnon::DonneAide().substr(0, 6), "Usage:");
}

TEST(OfficeMessages, ALanguageThatOnlyBeginsLikeFrenchIsNotFrench) {
    MetsLangue("", "", "fry_NL");
    EXPECT_EQ(Dis({"oui", "yes"}), "yes");
}

TEST(OfficeMessages, ArgumentsAreFilledInOnceAndAsTheyAre) {
    MetsLangue("C", "", "");
    EXPECT_EQ(Dis({"", "{1}, {2}, {1} {3} {x}"}, {"{2}", "\xE9"}), "{2}, \xE9, {2} {3} {x}");
}
