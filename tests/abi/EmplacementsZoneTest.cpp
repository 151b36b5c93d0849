// SPDX-License-Identifier: MPL-2.0
#include "Emplacement.h"
#include "ZoneDeTexteOOoProxy.h"
#include "ZoneEspion.h"

#include <gtest/gtest.h>

namespace {

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
    EXPECT_TRUE(AppelleEmplacement<bool>(objet, 12));
    EXPECT_EQ("EstMarquee", espion.nom);
}

TEST(ZoneSlots, TheSecondEntryDeletesTheWholeZone) {
    bool detruite = false;
    auto* const espion = new ZoneEspion;
    espion->aDetruire = &detruite;
    AppelleEmplacement<void>(static_cast<InterfaceZoneDeTexte*>(espion), 1);
    EXPECT_TRUE(detruite);
}

TEST(ZoneSlots, AZoneOfALibreOfficeDocumentAnswersAtTheSameNumbers) {
    ZoneDeTexteOOoProxy zone(nullptr, nullptr, UniChaine("un texte", UniChaine::kCodageLitteral),
                             UniChaine("nom", UniChaine::kCodageLitteral), 3, 5);
    void* const objet = static_cast<InterfaceZoneDeTexte*>(&zone);
    EXPECT_TRUE(AppelleEmplacement<bool>(objet, 2, 0, 0, 0, 0));
    EXPECT_EQ(3, AppelleEmplacement<int>(objet, 4));
    EXPECT_EQ(5, AppelleEmplacement<int>(objet, 5));
    EXPECT_EQ(8, AppelleEmplacement<TexteAvecAttributs>(objet, 7).Longueur());
    EXPECT_EQ(8, AppelleEmplacement<int>(objet, 8));
    EXPECT_FALSE(AppelleEmplacement<bool>(objet, 12));
}

} // namespace
