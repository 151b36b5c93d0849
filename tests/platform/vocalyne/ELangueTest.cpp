// SPDX-License-Identifier: MPL-2.0
#include "eLangue.h"
#include "VariableEnvironnement.h"

#include <gtest/gtest.h>

#include <string>

namespace {

/// The system's language under these three variables; null leaves one out.
eLangue SelonSysteme(char const* tout, char const* messages, char const* lang) {
    VariableMise const a("LC_ALL", tout);
    VariableMise const b("LC_MESSAGES", messages);
    VariableMise const c("LANG", lang);
    return eLangueSelonELangueAffichage(kAffichageSysteme);
}

TEST(DisplayLanguage, AChosenLanguageIsTakenWhateverTheSystemSays) {
    VariableMise const tout("LC_ALL", "de_DE.UTF-8");
    EXPECT_EQ(kLangueFrancais, eLangueSelonELangueAffichage(kAffichageFrancais));
    EXPECT_EQ(kLangueAnglais, eLangueSelonELangueAffichage(kAffichageAnglais));
}

TEST(DisplayLanguage, TheSystemsFirstVariableThatIsSetDecides) {
    EXPECT_EQ(kLangueFrancais, SelonSysteme("fr_FR.UTF-8", "en_US.UTF-8", "en_US.UTF-8"));
    EXPECT_EQ(kLangueFrancais, SelonSysteme(nullptr, "fr_CA.UTF-8", "en_CA.UTF-8"));
    EXPECT_EQ(kLangueFrancais, SelonSysteme(nullptr, nullptr, "fr_BE@euro"));
    EXPECT_EQ(kLangueAnglais, SelonSysteme(nullptr, "en_US.UTF-8", "fr_FR.UTF-8"));
    EXPECT_EQ(kLangueAnglais, SelonSysteme("C", "fr_FR.UTF-8", "fr_FR.UTF-8"));
    EXPECT_EQ(kLangueFrancais, SelonSysteme("", "", "fr"));
}

TEST(DisplayLanguage, NumbersInFrenchMakeNobodyFrench) {
    VariableMise const nombres("LC_NUMERIC", "fr_FR.UTF-8");
    EXPECT_EQ(kLangueAnglais, SelonSysteme(nullptr, nullptr, "en_US.UTF-8"));
}

TEST(DisplayLanguage, EveryOtherLocaleAndNoneAtAllMeanEnglish) {
    for (auto const* locale : {"C", "POSIX", "C.UTF-8", "de_DE.UTF-8", "fy_NL", "frr_DE", "f",
                               "_fr", "\xFF\xFE", "   "}) {
        EXPECT_EQ(kLangueAnglais, SelonSysteme(nullptr, nullptr, locale)) << locale;
    }
    EXPECT_EQ(kLangueAnglais, SelonSysteme(nullptr, nullptr, nullptr));
}

TEST(DisplayLanguage, EveryFormOfAFrenchLocaleIsFrench) {
    for (auto const* locale : {"fr", "FR", "fr_FR", "fr.UTF-8", "fr@euro", "fr_CH.ISO-8859-1@x"}) {
        EXPECT_EQ(kLangueFrancais, SelonSysteme(locale, nullptr, nullptr)) << locale;
    }
}

TEST(DisplayLanguage, AValueOutsideTheEnumerationFollowsTheSystem) {
    VariableMise const tout("LC_ALL", "fr_FR.UTF-8");
    EXPECT_EQ(kLangueFrancais, eLangueSelonELangueAffichage(static_cast<eLangueAffichage>(3)));
    EXPECT_EQ(kLangueFrancais, eLangueSelonELangueAffichage(static_cast<eLangueAffichage>(-1)));
}

} // namespace
