// SPDX-License-Identifier: MPL-2.0
#include "outils/Repetitions.h"
#include "outils/bus/Arroseur.h"
#include "outils/bus/BureauDeTest.h"
#include "outils/bus/BusPrive.h"
#include "outils/bus/ClientBureau.h"

#include <gtest/gtest.h>

#include <csignal>
#include <sys/stat.h>

namespace fs = std::filesystem;

namespace {

// The office is started with arguments that it must refuse, and must come back by itself.
class BadInput : public testing::Test {
  protected:
    int Lance(std::vector<std::string> commande,
              std::map<std::string, std::string> environnement = {}) {
        commande.insert(commande.begin(), CheminBureauTexte());
        environnement.insert({{"LC_ALL", "C.UTF-8"}});
        Processus bureau(commande, environnement);
        int const code = bureau.Attends();
        sortie = bureau.LisLigne(0).value_or("");
        erreurs = bureau.Erreurs();
        return code;
    }
    bool Dit(std::string const& texte) const { return erreurs.find(texte) != std::string::npos; }

    BusPrive bus;
    DossierTemporaire dossier;
    std::string sortie;
    std::string erreurs;
};

} // namespace

TEST_F(BadInput, AMissingFileIsNamed) {
    EXPECT_EQ(Lance({(dossier.Chemin() / "rien.txt").string()}), 1);
    EXPECT_TRUE(Dit("rien.txt: no such file")) << erreurs;
    EXPECT_EQ(sortie, "");
}

TEST_F(BadInput, MessagesAreInThePersonsLanguage) {
    EXPECT_EQ(Lance({(dossier.Chemin() / "rien.txt").string()}, {{"LC_ALL", "fr_FR.UTF-8"}}), 1);
    EXPECT_TRUE(Dit("rien.txt : fichier introuvable")) << erreurs;
}

TEST_F(BadInput, AFolderAndAPipeAreRefused) {
    EXPECT_EQ(Lance({dossier.Chemin().string()}), 1);
    EXPECT_TRUE(Dit("is a folder")) << erreurs;
    fs::path const tube = dossier.Chemin() / "tube";
    ASSERT_EQ(::mkfifo(tube.c_str(), 0600), 0);
    EXPECT_EQ(Lance({tube.string()}), 1);
    EXPECT_TRUE(Dit("not a regular file")) << erreurs;
}

TEST_F(BadInput, FilesThatAreNoUtf8TextAreRefusedAndUntouched) {
    std::string const binaire("ab\0cd", 5);
    fs::path const premier = dossier.Ecris("binaire", binaire);
    fs::path const second = dossier.Ecris("latin1.txt", "caf\xE9\n");
    EXPECT_EQ(Lance({premier.string(), second.string()}), 1);
    EXPECT_TRUE(Dit("binaire: is not text (NUL byte at offset 2)")) << erreurs;
    EXPECT_TRUE(Dit("latin1.txt: is not UTF-8 (byte 3)")) << erreurs;
    EXPECT_EQ(LisOctets(premier), binaire);
    EXPECT_EQ(LisOctets(second), "caf\xE9\n");
}

TEST_F(BadInput, AVeryLargeFileIsRefusedWithTheLimit) {
    fs::path const grand = dossier.Ecris("grand.txt", "a");
    fs::resize_file(grand, 33 << 20);
    EXPECT_EQ(Lance({grand.string()}), 1);
    EXPECT_TRUE(Dit("too large, more than 32 MiB")) << erreurs;
}

TEST_F(BadInput, OneFileUnderTwoNamesIsRefused) {
    fs::path const fichier = dossier.Ecris("a.txt", "a");
    fs::create_symlink("a.txt", dossier.Chemin() / "lien.txt");
    fs::create_hard_link(fichier, dossier.Chemin() / "dur.txt");
    for (char const* const autre : {"a.txt", "lien.txt", "dur.txt"}) {
        EXPECT_EQ(Lance({fichier.string(), (dossier.Chemin() / autre).string()}), 1);
        EXPECT_TRUE(Dit(std::string(autre) + ": given twice")) << erreurs;
    }
}

TEST_F(BadInput, OneBadFileAmongGoodOnesServesNone) {
    EXPECT_EQ(Lance({dossier.Ecris("a.txt", "a").string(), "/nulle/part"}), 1);
    EXPECT_EQ(sortie, "");
}

TEST_F(BadInput, WrongOptionsShowTheUsageAndEndWithTwo) {
    std::string const fichier = dossier.Ecris("a.txt", "a").string();
    for (std::vector<std::string> const& options : std::vector<std::vector<std::string>>{
             {}, {"--bizarre", fichier}, {"--instance", "7", fichier}, {fichier, "--instance"}}) {
        EXPECT_EQ(Lance(options), 2);
        EXPECT_TRUE(Dit("Usage:")) << erreurs;
        EXPECT_EQ(sortie, "");
    }
}

TEST_F(BadInput, NamesAreToldWithoutWhatSteersATerminalOrHides) {
    EXPECT_EQ(Lance({"/nulle/\x1b[2Jpart\xE2\x80\xAEtxt.exe\n\xC2\x9B"
                     "31m\xFF"}),
              1);
    EXPECT_TRUE(
        Dit("/nulle/<U+001B>[2Jpart<U+202E>txt.exe<U+000A><U+009B>31m\xEF\xBF\xBD: no such"))
        << erreurs;
}

TEST_F(BadInput, HelpAndVersionGoToStandardOutputAndNeedNoBus) {
    bus.Tue();
    EXPECT_EQ(Lance({"--help"}), 0);
    EXPECT_EQ(sortie.substr(0, 6), "Usage:");
    EXPECT_EQ(Lance({"--version"}), 0);
    EXPECT_EQ(sortie.substr(0, 22), "vocalyne-bureau-texte ");
    EXPECT_EQ(erreurs, "");
}

TEST_F(BadInput, WithoutASessionBusItSaysSo) {
    fs::path const fichier = dossier.Ecris("a.txt", "a");
    for (char const* const adresse : {"unix:path=/nulle/part", "n'importe quoi"}) {
        EXPECT_EQ(Lance({fichier.string()}, {{"DBUS_SESSION_BUS_ADDRESS", adresse}}), 3);
        EXPECT_TRUE(Dit("No session bus")) << erreurs;
    }
    EXPECT_EQ(Lance({fichier.string()},
                    {{"DBUS_SESSION_BUS_ADDRESS", ""}, {"XDG_RUNTIME_DIR", ""}, {"DISPLAY", ""}}),
              3);
    EXPECT_TRUE(Dit("No session bus")) << erreurs;
    EXPECT_EQ(LisOctets(fichier), "a");
}

TEST_F(BadInput, ABusThatHasDiedLeavesADeadSocketBehind) {
    bus.Tue();
    EXPECT_EQ(Lance({dossier.Ecris("a.txt", "a").string()}), 3);
    EXPECT_TRUE(Dit("No session bus")) << erreurs;
}

TEST_F(BadInput, AnInstanceThatIsTakenIsRefusedAndItsOwnerUndisturbed) {
    BureauDeTest premier({{"a.txt", "a"}}, {"--instance", "moi"});
    EXPECT_EQ(Lance({"--instance", "moi", dossier.Ecris("b.txt", "b").string()}), 3);
    EXPECT_TRUE(Dit("taken, by process " + std::to_string(premier.DonneProcessus().Pid())))
        << erreurs;
    ClientBureau const client("moi");
    client.Initialise("doc1");
    EXPECT_EQ(client.Texte("DonneTitreDocument"), "a.txt");
}

TEST_F(BadInput, AnswersThatTheBusHasNotGivenKeepNoOfficeFromStarting) {
    Arroseur const arroseur(bus.Adresse());
    int const fois = Repetitions(20, 1'000);
    for (int i = 0; i < fois; ++i) {
        BureauTexte const bureau({{"a.txt", "a"}}, {"--instance", "moi"});
        EXPECT_EQ(bureau.Identifiant(), "moi~doc1");
    }
    EXPECT_GT(arroseur.DonneNombre(), fois);
}

TEST_F(BadInput, TwoOfficesOnOneBusHaveInstancesOfTheirOwn) {
    BureauDeTest premier({{"a.txt", "a"}});
    BureauDeTest second({{"b.txt", "b"}});
    EXPECT_NE(premier.Instance(), second.Instance());
    EXPECT_EQ(premier.Instance().rfind(
                  "texte_" + std::to_string(premier.DonneProcessus().Pid()) + "_", 0),
              0U);
}

TEST_F(BadInput, AFileNameThatIsNotUtf8IsServedAllTheSame) {
    fs::path const fichier = dossier.Ecris("caf\xE9.txt", "Un.");
    Processus bureau({CheminBureauTexte(), "--instance", "moi", fichier.string()});
    ASSERT_EQ(bureau.LisLigne(), "moi~doc1");
    {
        ClientBureau const client("moi");
        client.Synchronise("moi~doc1");
        EXPECT_EQ(client.Texte("DonneTitreDocument"), "caf\uFFFD.txt");
        EXPECT_EQ(client.Corrige("z1", 0, 2, "Deux"), "");
    }
    bureau.Signale(SIGTERM);
    EXPECT_EQ(bureau.Attends(), 0);
    EXPECT_EQ(LisOctets(fichier), "Deux.");
}
