// SPDX-License-Identifier: MPL-2.0
#include "ZonesDeLAgent.h"

#include "CollectionZonesDeTexte.h"
#include "ImplAgentTexteur.h"
#include "ImplZoneDeTexteTEMP.h"

#include <algorithm>

namespace {

int DonneFinZoneBornee(ImplAgentTexteur& agent, int position, int longueur) {
    try {
        int const fin = agent.DonneFinZone(position);
        return fin > position ? std::min(fin, longueur) : longueur;
    } catch (...) {
        // A connector's failure must not reach the host.
        return longueur;
    }
}

} // namespace

ZonesDeLAgent::ZonesDeLAgent() = default;

ZonesDeLAgent::~ZonesDeLAgent() = default;

void ZonesDeLAgent::Vide() noexcept {
    zones_.clear();
}

void ZonesDeLAgent::Construis(ImplAgentTexteur& agent, BornesDuTexte const& bornes,
                              CollectionZonesDeTexte& collection) {
    for (int pos = 0; pos < bornes.longueur;) {
        int const fin = DonneFinZoneBornee(agent, pos, bornes.longueur);
        auto& zone = *zones_.emplace_back(std::make_unique<ImplZoneDeTexteTEMP>(&agent, pos, fin));
        collection.AjouteEmpruntee(zone, &agent);
        if (pos <= bornes.debutSelection && bornes.debutSelection < fin &&
            pos <= bornes.finSelection && bornes.finSelection <= fin) {
            zone.MetsSelection(bornes.debutSelection - pos, bornes.finSelection - pos);
        }
        zone.Remplis();
        pos = fin;
    }
}

void ZonesDeLAgent::Decale(int fin, int finZone, int delta) {
    for (auto& zone : zones_) {
        zone->Decale(fin, finZone, delta);
    }
}
