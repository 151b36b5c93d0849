// SPDX-License-Identifier: MPL-2.0
#include "coeur/OptionsBureau.h"

#include <gtest/gtest.h>

using compagnon::Action;
using compagnon::LisOptions;
using compagnon::OptionsBureau;

namespace {

OptionsBureau Lis(std::vector<std::string> mots) {
    mots.insert(mots.begin(), "vocalyne-bureau-texte");
    std::vector<char*> argv;
    argv.reserve(mots.size() + 1);
    for (std::string& mot : mots) {
        argv.push_back(mot.data());
    }
    argv.push_back(nullptr);
    return LisOptions(static_cast<int>(mots.size()), argv.data());
}

} // namespace

TEST(OfficeOptions, FilesAndOptionsMayStandInAnyOrder) {
    OptionsBureau const options = Lis({"a.txt", "--instance", "moi", "b.txt", "--fin-avec-hote"});
    EXPECT_EQ(options.action, Action::Sers);
    EXPECT_EQ(options.instance, "moi");
    EXPECT_TRUE(options.finAvecHote);
    EXPECT_FALSE(options.sansEnregistrer);
    EXPECT_EQ(options.fichiers, (std::vector<std::string>{"a.txt", "b.txt"}));
}

TEST(OfficeOptions, AfterTwoDashesEverythingIsAFile) {
    EXPECT_EQ(Lis({"--", "--help"}).fichiers, std::vector<std::string>{"--help"});
}

TEST(OfficeOptions, HelpAndVersionGoBeforeTheRest) {
    EXPECT_EQ(Lis({"--help"}).action, Action::Aide);
    EXPECT_EQ(Lis({"-h", "a"}).action, Action::Aide);
    EXPECT_EQ(Lis({"--version"}).action, Action::Version);
    EXPECT_EQ(Lis({"-v"}).action, Action::Version);
}

TEST(OfficeOptions, AWrongOneIsNamed) {
    for (auto const& [mots, nomme] :
         {std::pair<std::vector<std::string>, std::string>{{"--bizarre", "a"}, "--bizarre"},
          {{"a", "--bizarre"}, "--bizarre"},
          {{"-x", "a"}, "-x"},
          {{"a", "--instance"}, "--instance"},
          {{"--fin-avec-hote=oui", "a"}, "--fin-avec-hote=oui"},
          {{"--instance", "7", "a"}, "\"7\""},
          {{"--instance=", "a"}, "\"\""},
          {{"--instance", "a~b", "a"}, "\"a~b\""},
          {{"--instance", "été", "a"}, "\"été\""},
          {{"--instance", "a.b", "a"}, "\"a.b\""},
          {{"--instance", std::string(216, 'a'), "a"}, "\"aaa"},
          {{}, "No file"}}) {
        OptionsBureau const options = Lis(mots);
        EXPECT_EQ(options.action, Action::Mauvaise);
        EXPECT_NE(options.erreur.find(nomme), std::string::npos) << options.erreur;
    }
}
