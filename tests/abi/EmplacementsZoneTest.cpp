// SPDX-License-Identifier: MPL-2.0
#include "Emplacement.h"
#include "InterfaceZoneDeTexte.h"

#include <gtest/gtest.h>

#include <string>

namespace {

/// A zone whose every operation leaves its name and arguments.
class ZoneEspion : public InterfaceZoneDeTexte {
  public:
    std::string nom;

    bool AccepteIntervalles(int a, int b, int c, int d) override {
        nom = "AccepteIntervalles" + Liste({a, b, c, d});
        return true;
    }
    bool CorrigeDansTexteur(int debut, int fin, UniChaine const& texte, bool drapeau) override {
        nom = "CorrigeDansTexteur" + Liste({debut, fin, texte.Longueur(), drapeau ? 1 : 0});
        return true;
    }
    int DonneDebutSelection() override { return 31; }
    int DonneFinSelection() override { return 41; }
    UniChaine DonneChaineAuxiliaire() override { return {"aux", UniChaine::kCodageLitteral}; }
    TexteAvecAttributs DonneTexte() override {
        TexteAvecAttributs texte(sdd::ChaineN(6, u'x'));
        texte.MetsAttribut(1, 2, 3);
        return texte;
    }
    int DonneLongueur() override { return 71; }
    bool PeutCorriger(int debut, int fin, UniChaine const& texte) override {
        nom = "PeutCorriger" + Liste({debut, fin, texte.Longueur()});
        return true;
    }
    void AjusteIntervalle(int debut, int fin, int* debutAjuste, int* finAjustee,
                          bool drapeau) override {
        *debutAjuste = debut + 1;
        *finAjustee = fin + 1;
        nom = "AjusteIntervalle" + Liste({drapeau ? 1 : 0});
    }
    bool SelectionneIntervalle(int debut, int fin) override {
        nom = "SelectionneIntervalle" + Liste({debut, fin});
        return true;
    }

  private:
    static std::string Liste(std::initializer_list<int> valeurs) {
        std::string texte;
        for (int const valeur : valeurs)
            texte += " " + std::to_string(valeur);
        return texte;
    }
};

TEST(ZoneSlots, EachNumberReachesItsOperationWithItsArguments) {
    ZoneEspion espion;
    void* const objet = static_cast<InterfaceZoneDeTexte*>(&espion);
    UniChaine const mot("mot", UniChaine::kCodageLitteral);
    EXPECT_TRUE(AppelleEmplacement<bool>(objet, 2, 1, 2, 3, 4));
    EXPECT_EQ("AccepteIntervalles 1 2 3 4", espion.nom);
    EXPECT_TRUE(AppelleEmplacement<bool>(objet, 3, 5, 6, &mot, true));
    EXPECT_EQ("CorrigeDansTexteur 5 6 3 1", espion.nom);
    EXPECT_EQ(31, AppelleEmplacement<int>(objet, 4));
    EXPECT_EQ(41, AppelleEmplacement<int>(objet, 5));
    EXPECT_EQ(UniChaine("aux", UniChaine::kCodageLitteral),
              AppelleEmplacement<UniChaine>(objet, 6));
    EXPECT_EQ(espion.DonneTexte(), AppelleEmplacement<TexteAvecAttributs>(objet, 7));
    EXPECT_EQ(71, AppelleEmplacement<int>(objet, 8));
    EXPECT_TRUE(AppelleEmplacement<bool>(objet, 9, 7, 8, &mot));
    EXPECT_EQ("PeutCorriger 7 8 3", espion.nom);
    int debut = 0;
    int fin = 0;
    AppelleEmplacement<void>(objet, 10, 20, 30, &debut, &fin, true);
    EXPECT_EQ("AjusteIntervalle 1", espion.nom);
    EXPECT_EQ(21, debut);
    EXPECT_EQ(31, fin);
    EXPECT_TRUE(AppelleEmplacement<bool>(objet, 11, 9, 10));
    EXPECT_EQ("SelectionneIntervalle 9 10", espion.nom);
    EXPECT_FALSE(AppelleEmplacement<bool>(objet, 12)) << "no zone is marked by default";
}

} // namespace
