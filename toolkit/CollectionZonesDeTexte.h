// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "InterfaceZoneDeTexte.h"

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

/// The zones that an agent hands to the host, in document order. The host makes the collection and
/// gives it to `DonneZones` or `SynchronisePositions`, which append to it.
///
/// Some connectors give their zones away, others keep them: each entry says which, so the host
/// handles all alike and nobody frees a zone twice. An owned zone dies with its entry. A borrowed
/// zone belongs to the agent named beside it and is valid until that agent's next synchronisation,
/// or its end; a synchronisation into the same collection takes the agent's old borrowed entries
/// out. In both cases the zones use their agent: empty the collection before the agent is deleted.
///
/// One thread at a time.
class CollectionZonesDeTexte {
  public:
    CollectionZonesDeTexte() = default;
    CollectionZonesDeTexte(CollectionZonesDeTexte&&) = default;
    CollectionZonesDeTexte& operator=(CollectionZonesDeTexte&&) = default;

    int DonneNombre() const noexcept { return static_cast<int>(entrees_.size()); }
    bool EstVide() const noexcept { return entrees_.empty(); }

    /// The zone at `rang`, or null when there is none. Valid while its entry stands.
    InterfaceZoneDeTexte* DonneZone(int rang) const noexcept {
        return rang >= 0 && rang < DonneNombre() ? entrees_[static_cast<std::size_t>(rang)].zone
                                                 : nullptr;
    }

    /// Does the collection own the zone at `rang`? False when there is none.
    bool Possede(int rang) const noexcept {
        return rang >= 0 && rang < DonneNombre() &&
               entrees_[static_cast<std::size_t>(rang)].possedee != nullptr;
    }

    /// Appends a zone that the collection owns from now on; null is ignored.
    void AjoutePossedee(std::unique_ptr<InterfaceZoneDeTexte> zone) {
        if (zone) {
            auto* const adresse = zone.get();
            entrees_.push_back({adresse, std::move(zone), nullptr});
        }
    }

    /// Appends a zone that stays the property of `proprietaire` (any address that names it).
    void AjouteEmpruntee(InterfaceZoneDeTexte& zone, void const* proprietaire) {
        entrees_.push_back({&zone, nullptr, proprietaire});
    }

    /// Puts an owned zone at `rang`, in front of the one that stands there; below 0 it comes first,
    /// beyond the end last. Null is ignored.
    void InserePossedee(int rang, std::unique_ptr<InterfaceZoneDeTexte> zone) {
        if (zone) {
            auto* const adresse = zone.get();
            entrees_.insert(DonnePlace(rang), {adresse, std::move(zone), nullptr});
        }
    }

    /// The same with a zone that stays the property of `proprietaire`.
    void InsereEmpruntee(int rang, InterfaceZoneDeTexte& zone, void const* proprietaire) {
        entrees_.insert(DonnePlace(rang), {&zone, nullptr, proprietaire});
    }

    /// Takes the zone at `rang` out. An owned one is the caller's from now on; null for a borrowed
    /// one, which stays its owner's, and for a rank that is not there.
    std::unique_ptr<InterfaceZoneDeTexte> Retire(int rang) {
        if (DonneZone(rang) == nullptr) {
            return nullptr;
        }
        auto const place = DonnePlace(rang);
        auto zone = std::move(place->possedee);
        entrees_.erase(place);
        return zone;
    }

    /// Takes out the zones borrowed from `proprietaire`; the others keep their order.
    void RetireEmpruntees(void const* proprietaire) {
        auto const reste =
            std::remove_if(entrees_.begin(), entrees_.end(), [proprietaire](Entree const& e) {
                return !e.possedee && e.proprietaire == proprietaire;
            });
        entrees_.erase(reste, entrees_.end());
    }

    /// Empties the collection and deletes the zones that it owns.
    void Vide() noexcept { entrees_.clear(); }

  private:
    struct Entree {
        InterfaceZoneDeTexte* zone;
        std::unique_ptr<InterfaceZoneDeTexte> possedee;
        void const* proprietaire;
    };

    std::vector<Entree>::iterator DonnePlace(int rang) {
        return entrees_.begin() + std::clamp(rang, 0, DonneNombre());
    }

    std::vector<Entree> entrees_;
};
