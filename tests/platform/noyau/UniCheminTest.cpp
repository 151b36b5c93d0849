// SPDX-License-Identifier: MPL-2.0
#include "UniChemin.h"

#include <gtest/gtest.h>

namespace {

UniChemin Chemin(char const* texte) {
    return UniChemin(UniChaine(texte, UniChaine::kCodageUtf8));
}

std::string NomAffiche(char const* texte) {
    return Chemin(texte).DonneNomAffiche().VersUtf8();
}

TEST(UniChemin, KeepsTheTextAsGiven) {
    EXPECT_EQ("//a/../b//c.odt", Chemin("//a/../b//c.odt").DonneChemin().VersUtf8());
    EXPECT_NE(Chemin("/a//b"), Chemin("/a/b"));
    EXPECT_EQ(Chemin("/a"), Chemin("/a"));
    EXPECT_TRUE(UniChemin().EstVide());
    EXPECT_FALSE(Chemin(" ").EstVide());
}

TEST(UniChemin, TheShownNameHasNeitherFolderNorLastExtension) {
    EXPECT_EQ("Été à Paris", NomAffiche("/home/é/Été à Paris.odt"));
    EXPECT_EQ("archive.tar", NomAffiche("archive.tar.gz"));
    EXPECT_EQ("soffice", NomAffiche("/usr/lib.d/soffice"));
    EXPECT_EQ(".profile", NomAffiche("/home/a/.profile"));
    EXPECT_EQ("a", NomAffiche("a."));
    EXPECT_EQ("", NomAffiche(""));
    EXPECT_EQ("", NomAffiche("/home/a/"));
}

} // namespace
