// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "CollectionZonesDeTexte.h"

class InterfaceAgentTexteur;

namespace UtilInterfaceAgentTexteur {

/// Brings a collection of zones up to date with a document without making every zone anew. A
/// connector that knows what changed derives from it; the toolkit instantiates none. Host's calling
/// thread.
class MAJCollectionZoneTexte {
  public:
    /// Keeps the three values for the deriving class, in this order: the agent, the collection to
    /// update, and the first zone that may have changed. Agent and collection must outlive it.
    MAJCollectionZoneTexte(InterfaceAgentTexteur& agent, CollectionZonesDeTexte& zones,
                           int premiereZone)
        : agent_(agent)
        , zones_(zones)
        , premiereZone_(premiereZone) {}
    MAJCollectionZoneTexte(MAJCollectionZoneTexte const&) = delete;
    MAJCollectionZoneTexte& operator=(MAJCollectionZoneTexte const&) = delete;
    virtual ~MAJCollectionZoneTexte() = default;

    /// How many zones the document has now.
    virtual int DonneNombreZones() = 0;
    /// Does the zone at `rang` of the collection still tell the document's text?
    virtual bool EstAJour(int rang) = 0;
    /// Makes the zone at `rang` of the document, the caller's; null when it cannot be read.
    virtual InterfaceZoneDeTexte* CreeZone(int rang) = 0;
    /// Puts a zone in the collection at `rang`: `InserePossedee`, so that it dies with its entry.
    virtual void InsereZone(int rang, InterfaceZoneDeTexte* zone) = 0;
    /// Takes the zone at `rang` out of the collection and returns it (what the collection's
    /// `Retire` releases), the caller's from now on; null when the collection does not own it.
    virtual InterfaceZoneDeTexte* RetireZone(int rang) = 0;

    /// Deletes a zone; null is ignored.
    void DetruisZone(InterfaceZoneDeTexte* zone) { delete zone; }

  protected:
    InterfaceAgentTexteur& DonneAgent() const noexcept { return agent_; }
    CollectionZonesDeTexte& DonneCollection() const noexcept { return zones_; }
    int DonnePremiereZone() const noexcept { return premiereZone_; }

  private:
    InterfaceAgentTexteur& agent_;
    CollectionZonesDeTexte& zones_;
    int premiereZone_;
};

} // namespace UtilInterfaceAgentTexteur
