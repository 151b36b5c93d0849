// SPDX-License-Identifier: MPL-2.0
#include "menu/lancement/EnvironnementEnfant.h"
#include "menu/lancement/Interroge.h"
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

TEST(Interroge, AProgramSaysItsTextAndItsCode) {
    auto const dite =
        extension::Interroge({"/bin/sh", "-c", "printf '%s' \"$UN\"; exit 3"}, {"UN=dit"}, 60000);
    EXPECT_TRUE(dite.finie);
    EXPECT_EQ(dite.code, 3);
    EXPECT_EQ(dite.texte, "dit");
}

TEST(Interroge, OneThatDoesNotEndIsKilled) {
    auto const dite =
        extension::Interroge({"/bin/sh", "-c", "echo debut; exec sleep 600"}, {}, 200);
    EXPECT_FALSE(dite.finie);
    EXPECT_EQ(dite.code, -1);
}

TEST(Interroge, OneThatCannotBeStartedIsTold) {
    auto const dite = extension::Interroge({"/absent"}, {}, 60000);
    EXPECT_FALSE(dite.finie);
    EXPECT_FALSE(dite.texte.empty());
}

TEST(Interroge, MoreThanIsWantedIsReadAndLeftOut) {
    auto const dite = extension::Interroge(
        {"/bin/sh", "-c", "i=0; while [ $i -lt 3000 ]; do printf '%0100d' 0; i=$((i+1)); done"}, {},
        60000);
    EXPECT_TRUE(dite.finie);
    EXPECT_EQ(dite.texte.size(), 65536U);
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
