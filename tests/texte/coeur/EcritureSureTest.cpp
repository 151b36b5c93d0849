// SPDX-License-Identifier: MPL-2.0
#include "coeur/EcritureSure.h"
#include "outils/DossierEssai.h"

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>

using compagnon::Ecriture;
using compagnon::EcritureSure;
using compagnon::IssueEcriture;

class SafeWriting : public DossierEssai {};

TEST_F(SafeWriting, ReplacesTheContentAndLeavesNothingBeside) {
    std::string const chemin = Ecris("a.txt", "avant");
    EXPECT_EQ(EcritureSure(chemin, "avant").Ecris("après").issue, IssueEcriture::Faite);
    EXPECT_EQ(Lis(chemin), "après");
    EXPECT_EQ(Noms(), "a.txt");
}

TEST_F(SafeWriting, KeepsModeAndOwner) {
    std::string const chemin = Ecris("a.txt", "avant");
    ASSERT_EQ(::chmod(chemin.c_str(), 0640), 0);
    struct stat avant {};
    struct stat apres {};
    ASSERT_EQ(::stat(chemin.c_str(), &avant), 0);
    EXPECT_EQ(EcritureSure(chemin, "avant").Ecris("après").issue, IssueEcriture::Faite);
    ASSERT_EQ(::stat(chemin.c_str(), &apres), 0);
    EXPECT_EQ(apres.st_mode, avant.st_mode);
    EXPECT_EQ(apres.st_uid, avant.st_uid);
    EXPECT_EQ(apres.st_gid, avant.st_gid);
}

TEST_F(SafeWriting, AFileThatSomeoneChangedIsLeftAndOursIsPutBeside) {
    std::string const chemin = Ecris("lettre.txt", "leur version");
    Ecriture const ecriture = EcritureSure(chemin, "avant").Ecris("notre version");
    EXPECT_EQ(ecriture.issue, IssueEcriture::Conflit);
    EXPECT_EQ(Lis(chemin), "leur version");
    EXPECT_EQ(ecriture.ailleurs, (dossier / "lettre.corrige-1.txt").string());
    EXPECT_EQ(Lis(ecriture.ailleurs), "notre version");
    EXPECT_EQ(Noms(), "lettre.corrige-1.txt lettre.txt");
}

TEST_F(SafeWriting, AFileThatOnlyGrewHasBeenChanged) {
    std::string const chemin = Ecris("a.txt", "avant et plus");
    EXPECT_EQ(EcritureSure(chemin, "avant").Ecris("après").issue, IssueEcriture::Conflit);
    EXPECT_EQ(Lis(chemin), "avant et plus");
}

TEST_F(SafeWriting, AChangeInTheLastInstantIsPutBack) {
    std::string const chemin = Ecris("a.txt", "avant");
    EcritureSure ecriture(chemin, "avant");
    ecriture.avantEchange = [&] { Ecris("a.txt", "leur version"); };
    Ecriture const issue = ecriture.Ecris("notre version");
    EXPECT_EQ(issue.issue, IssueEcriture::Conflit);
    EXPECT_EQ(Lis(chemin), "leur version");
    EXPECT_EQ(Lis(issue.ailleurs), "notre version");
    EXPECT_EQ(Noms(), "a.corrige-1.txt a.txt");
}

TEST_F(SafeWriting, AFileReplacedInTheLastInstantIsPutBack) {
    std::string const chemin = Ecris("a.txt", "avant");
    EcritureSure ecriture(chemin, "avant");
    ecriture.avantEchange = [&] {
        std::filesystem::rename(Ecris("b.txt", "leur version"), chemin);
    };
    EXPECT_EQ(ecriture.Ecris("notre version").issue, IssueEcriture::Conflit);
    EXPECT_EQ(Lis(chemin), "leur version");
    EXPECT_EQ(Lis(dossier / "a.corrige-1.txt"), "notre version");
}

TEST_F(SafeWriting, AFileDeletedInTheLastInstantIsNotMadeAgain) {
    std::string const chemin = Ecris("a.txt", "avant");
    EcritureSure ecriture(chemin, "avant");
    ecriture.avantEchange = [&] { std::filesystem::remove(chemin); };
    EXPECT_EQ(ecriture.Ecris("notre version").issue, IssueEcriture::Conflit);
    EXPECT_EQ(Noms(), "a.corrige-1.txt");
    EXPECT_EQ(Lis(dossier / "a.corrige-1.txt"), "notre version");
}

TEST_F(SafeWriting, CopiesGetTheFirstFreeNumberAndOverwriteNothing) {
    std::string const chemin = Ecris("a.txt", "leur version");
    Ecris("a.corrige-1.txt", "ancienne");
    std::filesystem::create_symlink("/nulle/part", dossier / "a.corrige-2.txt");
    Ecriture const ecriture = EcritureSure(chemin, "avant").Ecris("notre version");
    EXPECT_EQ(ecriture.ailleurs, (dossier / "a.corrige-3.txt").string());
    EXPECT_EQ(Lis(dossier / "a.corrige-1.txt"), "ancienne");
}

TEST_F(SafeWriting, NamesWithoutAnExtensionHiddenOnesAndLongOnesGetACopyToo) {
    std::string const long255(255, 'x');
    for (auto const& [nom, copie] :
         {std::pair<std::string, std::string>{"LISEZMOI", "LISEZMOI.corrige-1"},
          {".profil", ".profil.corrige-1"},
          {long255, std::string(200, 'x') + ".corrige-1"}}) {
        Ecriture const ecriture =
            EcritureSure(Ecris(nom, "leur version"), "avant").Ecris("notre version");
        EXPECT_EQ(ecriture.ailleurs, (dossier / copie).string());
        EXPECT_EQ(Lis(ecriture.ailleurs), "notre version");
    }
    EXPECT_EQ(EcritureSure((dossier / long255).string(), "leur version").Ecris("après").issue,
              IssueEcriture::Faite);
}

TEST_F(SafeWriting, InAFolderThatMayNotBeWrittenTheTextGoesToTheTemporaryOne) {
    std::string const chemin = Ecris("a.txt", "avant");
    DossierTemporaire autre;
    autre.CedeAPersonne();
    std::filesystem::path const ailleurs = autre.Chemin();
    ASSERT_EQ(::chmod(dossier.c_str(), 0555), 0);
    EXPECT_EXIT(
        {
            DeviensPersonne();
            ::setenv("TMPDIR", ailleurs.c_str(), 1);
            Ecriture const ecriture = EcritureSure(chemin, "avant").Ecris("notre version");
            bool const bien = ecriture.issue == IssueEcriture::Echec &&
                              ecriture.erreurSysteme == EACCES &&
                              Lis(ecriture.ailleurs) == "notre version" &&
                              ecriture.ailleurs.rfind(ailleurs.string(), 0) == 0;
            ::_exit(bien ? 0 : 1);
        },
        testing::ExitedWithCode(0), "");
    EXPECT_EQ(Lis(chemin), "avant");
}

TEST_F(SafeWriting, OnAFullDiskTheOriginalStaysAndNoHalfTextIsLeft) {
    std::string const chemin = Ecris("a.txt", "avant");
    EXPECT_EXIT(
        {
            std::signal(SIGXFSZ, SIG_IGN);
            rlimit limite{};
            limite.rlim_cur = limite.rlim_max = 8;
            ::setrlimit(RLIMIT_FSIZE, &limite);
            ::setenv("TMPDIR", dossier.c_str(), 1);
            Ecriture const ecriture = EcritureSure(chemin, "avant").Ecris("un texte trop long");
            ::_exit(ecriture.issue == IssueEcriture::Perdue && ecriture.erreurSysteme == EFBIG ? 0
                                                                                               : 1);
        },
        testing::ExitedWithCode(0), "");
    EXPECT_EQ(Lis(chemin), "avant");
    EXPECT_EQ(Noms(), "a.txt");
}
