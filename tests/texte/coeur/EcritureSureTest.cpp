// SPDX-License-Identifier: MPL-2.0
#include "coeur/EcritureSure.h"
#include "outils/DossierEssai.h"

#include <cerrno>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/xattr.h>

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

namespace {

/// An access control list as Linux keeps it (linux/posix_acl_xattr.h): version 2, then entries of a
/// tag, rights and an identity. Owner and a user named by number read and write, all others
/// nothing.
std::string ListeDAcces(std::uint32_t nomme) {
    struct Entree {
        std::uint16_t genre;
        std::uint16_t droits;
        std::uint32_t qui;
    };
    constexpr std::uint32_t kPersonne = 0xFFFFFFFF;
    std::uint32_t const version = 2;
    Entree const entrees[] = {{0x01, 6, kPersonne},
                              {0x02, 6, nomme},
                              {0x04, 0, kPersonne},
                              {0x10, 6, kPersonne},
                              {0x20, 0, kPersonne}};
    std::string liste(reinterpret_cast<char const*>(&version), sizeof version);
    liste.append(reinterpret_cast<char const*>(entrees), sizeof entrees);
    return liste;
}

std::string Attribut(std::string const& chemin, char const* nom) {
    char tampon[200];
    auto const taille = ::getxattr(chemin.c_str(), nom, tampon, sizeof tampon);
    return taille < 0 ? "none" : std::string(tampon, static_cast<std::size_t>(taille));
}

bool MetsAttribut(std::string const& chemin, char const* nom, std::string const& valeur) {
    return ::setxattr(chemin.c_str(), nom, valeur.data(), valeur.size(), 0) == 0;
}

} // namespace

TEST_F(SafeWriting, KeepsAccessControlLists) {
    std::string const chemin = Ecris("a.txt", "avant");
    auto const liste = ListeDAcces(12345);
    ASSERT_TRUE(MetsAttribut(chemin, "system.posix_acl_access", liste)) << std::strerror(errno);
    EXPECT_EQ(EcritureSure(chemin, "avant").Ecris("après").issue, IssueEcriture::Faite);
    EXPECT_EQ(Lis(chemin), "après");
    EXPECT_EQ(Attribut(chemin, "system.posix_acl_access"), liste);
}

TEST_F(SafeWriting, KeepsExtendedAttributes) {
    // Where the tests were built: a folder for temporary files may have none, in memory.
    auto modele = (std::filesystem::current_path() / "attributs-XXXXXX").string();
    ASSERT_NE(::mkdtemp(modele.data()), nullptr);
    auto const chemin = modele + "/a.txt";
    std::ofstream(chemin) << "avant";
    EXPECT_TRUE(MetsAttribut(chemin, "user.origine", "ici")) << std::strerror(errno);
    EXPECT_EQ(EcritureSure(chemin, "avant").Ecris("après").issue, IssueEcriture::Faite);
    EXPECT_EQ(Lis(chemin), "après");
    EXPECT_EQ(Attribut(chemin, "user.origine"), "ici");
    std::filesystem::remove_all(modele);
}

TEST_F(SafeWriting, GivesNobodyRightsThatOnlyTheFolderWouldGive) {
    std::string const chemin = Ecris("a.txt", "avant");
    ASSERT_EQ(::chmod(chemin.c_str(), 0660), 0);
    ASSERT_TRUE(MetsAttribut(dossier.string(), "system.posix_acl_default", ListeDAcces(12345)))
        << std::strerror(errno);
    EXPECT_EQ(EcritureSure(chemin, "avant").Ecris("après").issue, IssueEcriture::Faite);
    EXPECT_EQ(Attribut(chemin, "system.posix_acl_access"), "none");
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
