// SPDX-License-Identifier: MPL-2.0
#include "coeur/LectureFichier.h"
#include "outils/DossierEssai.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

using compagnon::LectureFichier;
using compagnon::LisFichier;
using compagnon::ProblemeFichier;
using namespace std::string_literals;

class FileReading : public DossierEssai {};

TEST_F(FileReading, GivesTheBytesAndTheRealPath) {
    std::string const chemin = Ecris("a.txt", "été\r\n");
    std::filesystem::create_symlink("a.txt", dossier / "lien.txt");
    LectureFichier const lecture = LisFichier((dossier / "lien.txt").string());
    EXPECT_EQ(lecture.probleme, ProblemeFichier::Aucun);
    EXPECT_EQ(lecture.octets, "été\r\n");
    EXPECT_EQ(lecture.cheminReel, chemin);
    EXPECT_TRUE(lecture.inscriptible);
    LectureFichier const direct = LisFichier(chemin);
    EXPECT_EQ(direct.numero, lecture.numero);
    EXPECT_EQ(direct.peripherique, lecture.peripherique);
}

TEST_F(FileReading, AnEmptyFileIsFine) {
    EXPECT_EQ(LisFichier(Ecris("vide", "")).probleme, ProblemeFichier::Aucun);
}

TEST_F(FileReading, WhatIsMissingIsSaidToBe) {
    EXPECT_EQ(LisFichier((dossier / "rien").string()).probleme, ProblemeFichier::Introuvable);
    EXPECT_EQ(LisFichier(Ecris("a", "") + "/b").probleme, ProblemeFichier::Introuvable);
    EXPECT_EQ(LisFichier("").probleme, ProblemeFichier::Introuvable);
    std::filesystem::create_symlink("nulle-part", dossier / "pendant");
    EXPECT_EQ(LisFichier((dossier / "pendant").string()).probleme, ProblemeFichier::Introuvable);
}

TEST_F(FileReading, WhatIsNoFileIsRefusedWithoutBlocking) {
    EXPECT_EQ(LisFichier(dossier.string()).probleme, ProblemeFichier::Dossier);
    ASSERT_EQ(::mkfifo((dossier / "tube").c_str(), 0600), 0);
    EXPECT_EQ(LisFichier((dossier / "tube").string()).probleme, ProblemeFichier::PasUnFichier);
    EXPECT_EQ(LisFichier("/dev/zero").probleme, ProblemeFichier::PasUnFichier);
    int const prise = ::socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un adresse{};
    adresse.sun_family = AF_UNIX;
    std::string const nom = (dossier / "prise").string();
    nom.copy(adresse.sun_path, sizeof adresse.sun_path - 1);
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): the socket interface wants it
    ASSERT_EQ(::bind(prise, reinterpret_cast<sockaddr*>(&adresse), sizeof adresse), 0);
    EXPECT_EQ(LisFichier(nom).probleme, ProblemeFichier::PasUnFichier);
    ::close(prise);
}

TEST_F(FileReading, ALoopOfLinksIsUnreadable) {
    std::filesystem::create_symlink("b", dossier / "a");
    std::filesystem::create_symlink("a", dossier / "b");
    LectureFichier const lecture = LisFichier((dossier / "a").string());
    EXPECT_EQ(lecture.probleme, ProblemeFichier::Illisible);
    EXPECT_EQ(lecture.erreurSysteme, ELOOP);
}

TEST_F(FileReading, WhatMayNotBeReadIsSaidToBe) {
    std::string const chemin = Ecris("secret", "a");
    ASSERT_EQ(::chmod(chemin.c_str(), 0), 0);
    EXPECT_EXIT(
        {
            DeviensPersonne();
            LectureFichier const lecture = LisFichier(chemin);
            ::_exit(lecture.probleme == ProblemeFichier::Illisible &&
                            lecture.erreurSysteme == EACCES
                        ? 0
                        : 1);
        },
        testing::ExitedWithCode(0), "");
}

TEST_F(FileReading, WhatMayNotBeWrittenIsReadAndMarked) {
    std::string const chemin = Ecris("fige", "a");
    ASSERT_EQ(::chmod(chemin.c_str(), 0444), 0);
    EXPECT_EXIT(
        {
            DeviensPersonne();
            LectureFichier const lecture = LisFichier(chemin);
            ::_exit(lecture.probleme == ProblemeFichier::Aucun && !lecture.inscriptible ? 0 : 1);
        },
        testing::ExitedWithCode(0), "");
}

TEST_F(FileReading, WhatIsNoTextIsRefusedWithThePlace) {
    LectureFichier const binaire = LisFichier(Ecris("binaire", "ab\0c"s));
    EXPECT_EQ(binaire.probleme, ProblemeFichier::Binaire);
    EXPECT_EQ(binaire.position, 2U);
    LectureFichier const latin = LisFichier(Ecris("latin1.txt", "caf\xE9 cr\xE8me"));
    EXPECT_EQ(latin.probleme, ProblemeFichier::PasUtf8);
    EXPECT_EQ(latin.position, 3U);
    LectureFichier const utf16 = LisFichier(Ecris("utf16.txt", "\xFF\xFE\x61\x62"s));
    EXPECT_EQ(utf16.probleme, ProblemeFichier::PasUtf8);
}

TEST_F(FileReading, TheLimitIsServedAndOneByteMoreIsNot) {
    EXPECT_EQ(LisFichier(Ecris("juste", std::string(1000, 'a')), 1000).probleme,
              ProblemeFichier::Aucun);
    EXPECT_EQ(LisFichier(Ecris("trop", std::string(1001, 'a')), 1000).probleme,
              ProblemeFichier::TropGrand);
}

TEST_F(FileReading, AHugeSparseFileIsRefusedWithoutReadingItAll) {
    std::string const chemin = Ecris("creux", "");
    ASSERT_EQ(::truncate(chemin.c_str(), off_t{1} << 30), 0);
    EXPECT_EQ(LisFichier(chemin).probleme, ProblemeFichier::TropGrand);
}

TEST_F(FileReading, TooManyLinesAreRefused) {
    EXPECT_EQ(LisFichier(Ecris("juste", std::string(compagnon::kParagraphesMax, '\n'))).probleme,
              ProblemeFichier::Aucun);
    EXPECT_EQ(LisFichier(Ecris("trop", std::string(compagnon::kParagraphesMax + 1, '\n'))).probleme,
              ProblemeFichier::TropDeLignes);
}
