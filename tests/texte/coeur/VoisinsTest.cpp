// SPDX-License-Identifier: MPL-2.0
// What a program that was killed while it saved has left beside a file.
#include "coeur/Voisins.h"
#include "outils/DossierEssai.h"

#include <fcntl.h>
#include <sys/file.h>

using compagnon::Descripteur;
using compagnon::RangeLesRestes;

using Copies = std::vector<std::string>;

class Leftovers : public DossierEssai {
  protected:
    /// A neighbour of the file, as one that saves makes it, and its end.
    std::string Laisse(std::string const& chemin, std::string const& texte, bool entier) {
        std::string voisin;
        Descripteur const fichier = compagnon::CreeVoisin(chemin, voisin);
        EXPECT_TRUE(fichier && compagnon::EcrisTout(fichier.Donne(), texte));
        EXPECT_TRUE(!entier || compagnon::Acheve(voisin));
        return voisin;
    }
};

TEST_F(Leftovers, PartsOfATextAndWhatTheFileHoldsAreTakenAway) {
    std::string const chemin = Ecris("a.txt", "le texte");
    Laisse(chemin, "une par", false);
    Laisse(chemin, "le texte", true);
    EXPECT_EQ(RangeLesRestes(chemin), Copies());
    EXPECT_EQ(Noms(), "a.txt");
    EXPECT_EQ(Lis(chemin), "le texte");
}

TEST_F(Leftovers, AWholeTextThatTheFileDoesNotHoldBecomesACopy) {
    std::string const chemin = Ecris("a.txt", "le texte");
    Laisse(chemin, "le texte corrigé", true);
    auto const copie = (dossier / "a.corrige-1.txt").string();
    EXPECT_EQ(RangeLesRestes(chemin), Copies{copie});
    EXPECT_EQ(Lis(copie), "le texte corrigé");
    EXPECT_EQ(Noms(), "a.corrige-1.txt a.txt");
    EXPECT_EQ(RangeLesRestes(chemin), Copies()) << "once";
}

TEST_F(Leftovers, WhatAnotherProgramIsWritingIsLeftAlone) {
    std::string const chemin = Ecris("a.txt", "le texte");
    std::string voisin;
    Descripteur const fichier = compagnon::CreeVoisin(chemin, voisin);
    ASSERT_TRUE(fichier);
    EXPECT_EQ(RangeLesRestes(chemin), Copies());
    EXPECT_EQ(::access(voisin.c_str(), F_OK), 0);
}

TEST_F(Leftovers, OfOtherFilesAndOtherKindsAreLeftAlone) {
    std::string const chemin = Ecris("a.txt", "le texte");
    std::string const autre = Laisse(Ecris("ab.txt", "x"), "y", false);
    std::string const cible = Ecris("cible", "la cible");
    auto const lien = (dossier / ".a.txt.vocalyne-lien").string();
    ASSERT_EQ(::symlink(cible.c_str(), lien.c_str()), 0);
    EXPECT_EQ(RangeLesRestes(chemin), Copies());
    EXPECT_EQ(::access(autre.c_str(), F_OK), 0);
    EXPECT_EQ(Lis(cible), "la cible");
    EXPECT_EQ(::unlink(lien.c_str()), 0) << "it is there still";
}
