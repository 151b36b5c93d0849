// SPDX-License-Identifier: MPL-2.0
#include "InitialisationGenerale.h"

#include "DetruisApplication.h"
#include "VariableEnvironnement.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

namespace {

QString TexteDeQt() {
    return QCoreApplication::translate("QPlatformTheme", "Cancel");
}

TEST(Initialisation, UntilALanguageIsFixedItIsTheSystems) {
    VariableMise const tout("LC_ALL", "fr_FR.UTF-8");
    EXPECT_EQ(kLangueFrancais, InitialisationGenerale::DonneLangue());
    VariableMise const autre("LC_ALL", "en_US.UTF-8");
    EXPECT_EQ(kLangueAnglais, InitialisationGenerale::DonneLangue());
    InitialisationGenerale::InitLePlusTotPossible(kLangueFrancais);
    EXPECT_EQ(kLangueFrancais, InitialisationGenerale::DonneLangue());
}

TEST(Initialisation, WithoutAnApplicationThereIsNothingToDo) {
    ASSERT_EQ(nullptr, QCoreApplication::instance());
    InitialisationGenerale::InitApresQApp();
    EXPECT_EQ(nullptr, QCoreApplication::instance());
}

TEST(Initialisation, QtsOwnTextsFollowTheLanguageAndTheApplication) {
    InitialisationGenerale::InitLePlusTotPossible(kLangueFrancais);
    for (int tour = 0; tour < 3; ++tour) {
        InitQApplication();
        EXPECT_EQ(QStringLiteral("Cancel"), TexteDeQt());
        InitialisationGenerale::InitApresQApp();
        InitialisationGenerale::InitApresQApp();
        EXPECT_EQ(QStringLiteral("Annuler"), TexteDeQt());
        InitialisationGenerale::InitLePlusTotPossible(kLangueAnglais);
        InitialisationGenerale::InitApresQApp();
        EXPECT_EQ(QStringLiteral("Cancel"), TexteDeQt());
        InitialisationGenerale::InitLePlusTotPossible(kLangueFrancais);
        DetruisApplication();
    }
}

} // namespace
