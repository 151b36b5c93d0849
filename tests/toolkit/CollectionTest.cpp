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
#include <vector>

namespace {

ConnecteurMuet& Agent() {
    static ConnecteurMuet agent;
    return agent;
}

/// Counts the zones that stand.
class ZoneComptee : public ImplZoneDeTexteTEMP {
  public:
    explicit ZoneComptee(int longueur = 0)
        : ImplZoneDeTexteTEMP(&Agent(), 0, longueur)
        , longueur_(longueur) {
        ++vivantes;
    }
    ~ZoneComptee() override { --vivantes; }
    int DonneLongueur() override { return longueur_; }
    static inline int vivantes = 0;

  private:
    int longueur_;
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

TEST(ZoneCollection, TakesAZoneInAtARankAndAtTheNearestWhereThereIsNone) {
    ZoneComptee empruntee;
    CollectionZonesDeTexte zones;
    auto const insere = [&](int rang) {
        auto zone = std::make_unique<ZoneComptee>();
        auto* const adresse = zone.get();
        zones.InserePossedee(rang, std::move(zone));
        return adresse;
    };
    auto* const b = insere(5);
    auto* const a = insere(0);
    auto* const d = insere(INT_MAX);
    zones.InsereEmpruntee(2, empruntee, &Agent());
    auto* const premiere = insere(INT_MIN);
    zones.InserePossedee(0, nullptr);
    ASSERT_EQ(5, zones.DonneNombre());
    InterfaceZoneDeTexte* const attendues[] = {premiere, a, b, &empruntee, d};
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(attendues[i], zones.DonneZone(i)) << i;
        EXPECT_EQ(i != 3, zones.Possede(i)) << i;
    }
    zones.RetireEmpruntees(&Agent());
    EXPECT_EQ(4, zones.DonneNombre());
}

TEST(ZoneCollection, LetsGoOfAZoneAtARank) {
    ZoneComptee empruntee;
    CollectionZonesDeTexte zones;
    zones.AjoutePossedee(std::make_unique<ZoneComptee>());
    zones.AjouteEmpruntee(empruntee, &Agent());
    zones.AjoutePossedee(std::make_unique<ZoneComptee>());
    auto* const premiere = zones.DonneZone(0);
    auto* const derniere = zones.DonneZone(2);
    for (int const rang : {-1, 3, INT_MIN, INT_MAX}) {
        EXPECT_EQ(nullptr, zones.Retire(rang)) << rang;
    }
    EXPECT_EQ(3, zones.DonneNombre());
    auto const retiree = zones.Retire(0);
    EXPECT_EQ(premiere, retiree.get());
    EXPECT_EQ(3, ZoneComptee::vivantes) << "it is the caller's now";
    EXPECT_EQ(nullptr, zones.Retire(0)) << "a borrowed one stays its owner's";
    ASSERT_EQ(1, zones.DonneNombre());
    EXPECT_EQ(derniere, zones.DonneZone(0));
    EXPECT_EQ(3, ZoneComptee::vivantes);
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

/// What a connector makes of the updater that knows its document: a list of texts.
class MiseAJourDeTextes : public UtilInterfaceAgentTexteur::MAJCollectionZoneTexte {
  public:
    MiseAJourDeTextes(CollectionZonesDeTexte& zones, std::vector<int> longueurs)
        : MAJCollectionZoneTexte(Agent(), zones, 0)
        , longueurs_(std::move(longueurs)) {}

    int DonneNombreZones() override { return static_cast<int>(longueurs_.size()); }
    bool EstAJour(int rang) override {
        auto* const zone = DonneCollection().DonneZone(rang);
        return zone != nullptr && rang < DonneNombreZones() &&
               zone->DonneLongueur() == longueurs_[static_cast<std::size_t>(rang)];
    }
    InterfaceZoneDeTexte* CreeZone(int rang) override {
        auto zone = std::make_unique<ZoneComptee>(longueurs_[static_cast<std::size_t>(rang)]);
        return zone.release();
    }
    void InsereZone(int rang, InterfaceZoneDeTexte* zone) override {
        DonneCollection().InserePossedee(rang, std::unique_ptr<InterfaceZoneDeTexte>(zone));
    }
    InterfaceZoneDeTexte* RetireZone(int rang) override {
        return DonneCollection().Retire(rang).release();
    }

    /// Leaves the zones that are right, makes the others anew.
    void Fais() {
        for (int rang = 0; rang < DonneNombreZones(); ++rang) {
            if (!EstAJour(rang)) {
                DetruisZone(RetireZone(rang));
                InsereZone(rang, CreeZone(rang));
            }
        }
        while (DonneCollection().DonneNombre() > DonneNombreZones()) {
            DetruisZone(RetireZone(DonneCollection().DonneNombre() - 1));
        }
    }

  private:
    std::vector<int> longueurs_;
};

TEST(CollectionUpdater, CanBeWrittenAgainstACollection) {
    {
        CollectionZonesDeTexte zones;
        MiseAJourDeTextes(zones, {3, 5, 7}).Fais();
        ASSERT_EQ(3, zones.DonneNombre());
        auto* const premiere = zones.DonneZone(0);
        auto* const derniere = zones.DonneZone(2);
        MiseAJourDeTextes(zones, {3, 6, 7, 9}).Fais();
        ASSERT_EQ(4, zones.DonneNombre());
        EXPECT_EQ(premiere, zones.DonneZone(0)) << "what is right stays";
        EXPECT_EQ(derniere, zones.DonneZone(2));
        EXPECT_EQ(6, zones.DonneZone(1)->DonneLongueur());
        EXPECT_EQ(9, zones.DonneZone(3)->DonneLongueur());
        EXPECT_EQ(4, ZoneComptee::vivantes);
        MiseAJourDeTextes(zones, {3}).Fais();
        EXPECT_EQ(1, zones.DonneNombre());
        EXPECT_EQ(1, ZoneComptee::vivantes);
        EXPECT_TRUE(zones.Possede(0));
    }
    EXPECT_EQ(0, ZoneComptee::vivantes);
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
