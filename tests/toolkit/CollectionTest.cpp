// SPDX-License-Identifier: MPL-2.0
#include "CollectionZonesDeTexte.h"

#include "ImplZoneDeTexteTEMP.h"
#include "MAJCollectionZoneTexte.h"
#include "outils/ConnecteurMuet.h"

#include <gtest/gtest.h>

#include <climits>
#include <memory>
#include <type_traits>
#include <utility>

namespace {

ConnecteurMuet& Agent() {
    static ConnecteurMuet agent;
    return agent;
}

/// Counts the zones that stand.
class ZoneComptee : public ImplZoneDeTexteTEMP {
  public:
    ZoneComptee()
        : ImplZoneDeTexteTEMP(&Agent(), 0, 0) {
        ++vivantes;
    }
    ~ZoneComptee() override { --vivantes; }
    static inline int vivantes = 0;
};

TEST(ZoneCollection, StartsEmpty) {
    CollectionZonesDeTexte const zones;
    EXPECT_TRUE(zones.EstVide());
    EXPECT_EQ(0, zones.DonneNombre());
}

TEST(ZoneCollection, AnswersNullForARankThatItDoesNotHave) {
    CollectionZonesDeTexte zones;
    zones.AjoutePossedee(std::make_unique<ZoneComptee>());
    for (int const rang : {-1, 1, INT_MIN, INT_MAX}) {
        EXPECT_EQ(nullptr, zones.DonneZone(rang)) << rang;
        EXPECT_FALSE(zones.Possede(rang)) << rang;
    }
    EXPECT_NE(nullptr, zones.DonneZone(0));
}

TEST(ZoneCollection, IgnoresANullZone) {
    CollectionZonesDeTexte zones;
    zones.AjoutePossedee(nullptr);
    EXPECT_TRUE(zones.EstVide());
}

TEST(ZoneCollection, DeletesWhatItOwnsAndLeavesWhatItBorrowed) {
    ZoneComptee empruntee;
    {
        CollectionZonesDeTexte zones;
        zones.AjoutePossedee(std::make_unique<ZoneComptee>());
        zones.AjouteEmpruntee(empruntee, &Agent());
        zones.AjoutePossedee(std::make_unique<ZoneComptee>());
        EXPECT_TRUE(zones.Possede(0));
        EXPECT_FALSE(zones.Possede(1));
        EXPECT_EQ(&empruntee, zones.DonneZone(1));
        EXPECT_EQ(3, ZoneComptee::vivantes);
        zones.Vide();
        EXPECT_EQ(1, ZoneComptee::vivantes);
        EXPECT_TRUE(zones.EstVide());
        zones.AjoutePossedee(std::make_unique<ZoneComptee>());
        zones.AjouteEmpruntee(empruntee, &Agent());
    }
    EXPECT_EQ(1, ZoneComptee::vivantes);
}

TEST(ZoneCollection, TakesOutOneOwnersBorrowedZonesAndKeepsTheOrderOfTheOthers) {
    int un = 0;
    int deux = 0;
    ZoneComptee a;
    ZoneComptee b;
    ZoneComptee c;
    CollectionZonesDeTexte zones;
    zones.AjouteEmpruntee(a, &un);
    zones.AjoutePossedee(std::make_unique<ZoneComptee>());
    auto* const possedee = zones.DonneZone(1);
    zones.AjouteEmpruntee(b, &deux);
    zones.AjouteEmpruntee(c, &un);
    zones.RetireEmpruntees(&un);
    ASSERT_EQ(2, zones.DonneNombre());
    EXPECT_EQ(possedee, zones.DonneZone(0));
    EXPECT_TRUE(zones.Possede(0));
    EXPECT_EQ(&b, zones.DonneZone(1));
    zones.RetireEmpruntees(nullptr); // an owned zone has no owner's name
    EXPECT_EQ(2, zones.DonneNombre());
}

TEST(ZoneCollection, MovesWithItsZonesAndIsNotCopied) {
    static_assert(!std::is_copy_constructible_v<CollectionZonesDeTexte>);
    static_assert(!std::is_copy_assignable_v<CollectionZonesDeTexte>);
    CollectionZonesDeTexte zones;
    zones.AjoutePossedee(std::make_unique<ZoneComptee>());
    auto* const zone = zones.DonneZone(0);
    CollectionZonesDeTexte autre(std::move(zones));
    EXPECT_EQ(zone, autre.DonneZone(0));
    CollectionZonesDeTexte encore;
    encore.AjoutePossedee(std::make_unique<ZoneComptee>());
    encore = std::move(autre);
    EXPECT_EQ(zone, encore.DonneZone(0));
    EXPECT_EQ(1, ZoneComptee::vivantes);
}

TEST(ZoneCollection, OwnedZonesStandForAHundredThousand) {
    {
        CollectionZonesDeTexte zones;
        for (int i = 0; i < 100000; ++i) {
            zones.AjoutePossedee(std::make_unique<ZoneComptee>());
        }
        EXPECT_EQ(100000, ZoneComptee::vivantes);
        zones.RetireEmpruntees(&Agent());
        EXPECT_EQ(100000, zones.DonneNombre());
    }
    EXPECT_EQ(0, ZoneComptee::vivantes);
}

/// An updater whose operations are the test's own.
class MiseAJour : public UtilInterfaceAgentTexteur::MAJCollectionZoneTexte {
  public:
    using MAJCollectionZoneTexte::DonneAgent;
    using MAJCollectionZoneTexte::DonneCollection;
    using MAJCollectionZoneTexte::DonnePremiereZone;
    using MAJCollectionZoneTexte::MAJCollectionZoneTexte;

    int DonneNombreZones() override { return 0; }
    bool EstAJour(int /*rang*/) override { return false; }
    InterfaceZoneDeTexte* CreeZone(int /*rang*/) override { return new ZoneComptee; }
    void InsereZone(int /*rang*/, InterfaceZoneDeTexte* /*zone*/) override {}
    InterfaceZoneDeTexte* RetireZone(int /*rang*/) override { return nullptr; }
};

TEST(CollectionUpdater, KeepsTheThreeValuesItIsBuiltWith) {
    static_assert(std::is_abstract_v<UtilInterfaceAgentTexteur::MAJCollectionZoneTexte>);
    CollectionZonesDeTexte zones;
    MiseAJour const maj(Agent(), zones, 7);
    EXPECT_EQ(&Agent(), &maj.DonneAgent());
    EXPECT_EQ(&zones, &maj.DonneCollection());
    EXPECT_EQ(7, maj.DonnePremiereZone());
}

TEST(CollectionUpdater, DeletesAZoneAndIgnoresNull) {
    CollectionZonesDeTexte zones;
    MiseAJour maj(Agent(), zones, 0);
    auto* const zone = maj.CreeZone(0);
    EXPECT_EQ(1, ZoneComptee::vivantes);
    maj.DetruisZone(zone);
    EXPECT_EQ(0, ZoneComptee::vivantes);
    maj.DetruisZone(nullptr);
}

} // namespace
