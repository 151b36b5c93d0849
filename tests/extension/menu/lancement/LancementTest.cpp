// SPDX-License-Identifier: MPL-2.0
#include "menu/lancement/EnvironnementEnfant.h"
#include "menu/lancement/Lance.h"
#include "menu/lancement/LigneDeTerminal.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using extension::EnvironnementEnfant;
using testing::ElementsAre;

namespace {

TEST(LigneDeTerminal, ArgumentsStayWordsOfTheirOwnWhateverTheyHold) {
    std::string const hote = "/un chemin/$(reboot)/hote";
    auto const ligne = extension::LigneDeTerminal({"/usr/bin/xterm", "-e"}, "Entrée ; fin", hote,
                                                  {"corrige", "a~b"});
    ASSERT_EQ(ligne.size(), 10U);
    EXPECT_EQ(ligne[1], "-e");
    EXPECT_EQ(ligne[2], "/bin/sh");
    EXPECT_EQ(ligne[4].find("reboot"), std::string::npos);
    EXPECT_THAT(std::vector<std::string>(ligne.begin() + 6, ligne.end()),
                ElementsAre("Entrée ; fin", hote, "corrige", "a~b"));
}

TEST(Environnement, WhatIsTheOfficesOwnIsTakenOut) {
    EXPECT_THAT(EnvironnementEnfant({"PATH=/bin", "LD_LIBRARY_PATH=/usr/lib/libreoffice/program",
                                     "SAL_USE_VCLPLUGIN=gtk3", "URE_BOOTSTRAP=x", "PYTHONPATH=y",
                                     "LD_LIBRARY=z", "VIDE="},
                                    {}),
                ElementsAre("PATH=/bin", "LD_LIBRARY=z", "VIDE="));
}

TEST(Environnement, TheHostIsSentToTheBusThatTheExtensionIsOn) {
    EXPECT_THAT(
        EnvironnementEnfant({"DBUS_SESSION_BUS_ADDRESS=unix:path=/a", "HOME=/h"}, "unix:path=/b"),
        ElementsAre("HOME=/h", "DBUS_SESSION_BUS_ADDRESS=unix:path=/b"));
    EXPECT_THAT(EnvironnementEnfant({"DBUS_SESSION_BUS_ADDRESS=unix:path=/a"}, {}),
                ElementsAre("DBUS_SESSION_BUS_ADDRESS=unix:path=/a"));
}

TEST(Lance, AProgramThatCannotBeStartedIsSaid) {
    EXPECT_EQ(extension::Lance({"/bin/true"}, {}), "");
    EXPECT_NE(extension::Lance({"/nulle/part"}, {}), "");
}

} // namespace
