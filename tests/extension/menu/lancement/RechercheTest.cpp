// SPDX-License-Identifier: MPL-2.0
#include "menu/lancement/Recherche.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace fs = std::filesystem;
using extension::ChercheHote;
using extension::ChercheTerminal;
using extension::Reglages;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Recherche : public testing::Test {
  protected:
    void SetUp() override {
        std::string modele = (fs::temp_directory_path() / "vocalyne-XXXXXX").string();
        ASSERT_NE(mkdtemp(modele.data()), nullptr);
        dossier_ = modele;
    }
    void TearDown() override { fs::remove_all(dossier_); }

    std::string Dossier(std::string const& nom) const { return dossier_ + "/" + nom; }
    std::string Pose(std::string const& nom, bool executable = true) const {
        fs::path const chemin = Dossier(nom);
        fs::create_directories(chemin.parent_path());
        std::ofstream(chemin) << "#!/bin/sh\n";
        fs::permissions(chemin, executable ? fs::perms::owner_all : fs::perms::owner_read);
        return chemin;
    }

    std::string dossier_;
};

TEST_F(Recherche, TheHostThatTheEnvironmentNamesComesBeforeAllOthers) {
    Pose("installe/vocalyne-hote");
    std::string const voulu = Pose("ailleurs/mon hote");
    EXPECT_EQ(ChercheHote({voulu, {}, {}, {}}, Dossier("installe")).chemin, voulu);
}

TEST_F(Recherche, AHostNamedButMissingIsSaidAndNotReplaced) {
    Pose("installe/vocalyne-hote");
    auto const trouve = ChercheHote({"/nulle/part", {}, {}, {}}, Dossier("installe"));
    EXPECT_EQ(trouve.chemin, "");
    EXPECT_EQ(trouve.voulu, "/nulle/part");
}

TEST_F(Recherche, TheInstalledHostComesBeforeThePathsAndThePathsInTheirOrder) {
    std::string const second = Pose("b/vocalyne-hote");
    Reglages const reglages{{}, {}, Dossier("a") + ":" + Dossier("b") + ":" + Dossier("c"), {}};
    Pose("c/vocalyne-hote");
    EXPECT_EQ(ChercheHote(reglages, Dossier("installe")).chemin, second);
    std::string const installe = Pose("installe/vocalyne-hote");
    EXPECT_EQ(ChercheHote(reglages, Dossier("installe")).chemin, installe);
}

TEST_F(Recherche, WhatCannotBeRunIsPassedOver) {
    fs::create_directories(Dossier("a/vocalyne-hote"));
    Pose("b/vocalyne-hote", false);
    std::string const bon = Pose("c/vocalyne-hote");
    Reglages const reglages{{}, {}, Dossier("a") + ":" + Dossier("b") + ":" + Dossier("c"), {}};
    EXPECT_EQ(ChercheHote(reglages, {}).chemin, bon);
}

TEST_F(Recherche, ThePersonsOwnProgramsAreSearched) {
    EXPECT_THAT(ChercheHote({{}, {}, {}, "/home/moi"}, {}).dossiers,
                Contains("/home/moi/.local/bin"));
}

TEST_F(Recherche, FoldersThatAreNotAbsoluteAreNotSearched) {
    Reglages const reglages{{}, {}, "bin::.:" + Dossier("a") + ":" + Dossier("a"), {}};
    EXPECT_THAT(ChercheHote(reglages, {}).dossiers,
                ElementsAre(Dossier("a"), "/usr/bin", "/usr/local/bin", "/opt/vocalyne/bin"));
}

TEST_F(Recherche, TheSystemsOwnChoiceOfTerminalComesFirst) {
    Pose("xterm");
    std::string const choix = Pose("x-terminal-emulator");
    EXPECT_THAT(ChercheTerminal({{}, {}, dossier_, {}}).commande, ElementsAre(choix, "-e"));
}

TEST_F(Recherche, EachTerminalTakesItsCommandAfterItsOwnOption) {
    for (auto const& [nom, option] : {std::pair<char const*, char const*>{"gnome-terminal", "--"},
                                      {"xfce4-terminal", "-x"},
                                      {"konsole", "-e"},
                                      {"inconnu", "-e"}}) {
        std::string const chemin = Pose(nom);
        EXPECT_THAT(ChercheTerminal({{}, nom, dossier_, {}}).commande, ElementsAre(chemin, option));
    }
}

TEST_F(Recherche, ATerminalMayBeGivenWithArgumentsAndSpaces) {
    std::string const chemin = Pose("mon terminal");
    EXPECT_THAT(ChercheTerminal({{}, "'" + chemin + "' -fa 'Deja Vu'", {}, {}}).commande,
                ElementsAre(chemin, "-fa", "Deja Vu", "-e"));
}

TEST_F(Recherche, ATerminalThatCannotBeRunIsSaidAndNotReplaced) {
    Pose("xterm");
    for (std::string const voulu : {"absent --plein", "'", "   "}) {
        auto const trouve = ChercheTerminal({{}, voulu, dossier_, {}});
        EXPECT_THAT(trouve.commande, IsEmpty()) << voulu;
        EXPECT_EQ(trouve.voulu, voulu);
    }
}

} // namespace
