// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <list>
#include <memory>

class CollectionZonesDeTexte;
class ImplAgentTexteur;
class ImplZoneDeTexteTEMP;

/// What an agent's text measures, in UTF-16 code units from its start:
/// 0 <= debutSelection <= finSelection <= longueur.
struct BornesDuTexte {
    int longueur = 0;
    int debutSelection = 0;
    int finSelection = 0;
};

/// The zones that a generic agent lends to the host, from one synchronisation to the next. It
/// stands above agent and zone, so that neither has to make the other. Host's calling thread.
class ZonesDeLAgent {
  public:
    ZonesDeLAgent();
    ~ZonesDeLAgent();
    ZonesDeLAgent(ZonesDeLAgent const&) = delete;
    ZonesDeLAgent& operator=(ZonesDeLAgent const&) = delete;

    /// Deletes the zones; no collection may hold them any more.
    void Vide() noexcept;

    /// Cuts the whole text where the agent's `DonneFinZone` says, fills each zone from the agent,
    /// and appends it to `collection`, borrowed from `agent`, which must outlive the zones. A
    /// boundary that cannot be had, or that does not lie behind the zone's start, is the text's
    /// end. The selection goes to the zone that holds it whole. False when the agent throws while
    /// a zone is filled: that zone is dropped, and none is made behind it.
    bool Construis(ImplAgentTexteur& agent, BornesDuTexte const& bornes,
                   CollectionZonesDeTexte& collection);

    /// Follows a replacement that ended at `fin` in the zone that ended at `finZone`, and made the
    /// text `delta` longer.
    void Decale(int fin, int finZone, int delta);

  private:
    std::list<std::unique_ptr<ImplZoneDeTexteTEMP>> zones_;
};
