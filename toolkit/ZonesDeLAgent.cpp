// SPDX-License-Identifier: MPL-2.0
#include "ZonesDeLAgent.h"

#include "CollectionZonesDeTexte.h"
#include "ImplAgentTexteur.h"
#include "ImplZoneDeTexteTEMP.h"

#include <algorithm>
#include <utility>

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

bool Remplis(ImplZoneDeTexteTEMP& zone) {
    try {
        zone.Remplis();
        return true;
    } catch (...) {
        // Handed out, its filler would pass for the document's text.
        return false;
    }
}

} // namespace

ZonesDeLAgent::ZonesDeLAgent() = default;

ZonesDeLAgent::~ZonesDeLAgent() = default;

void ZonesDeLAgent::Vide() noexcept {
    zones_.clear();
}

bool ZonesDeLAgent::Construis(ImplAgentTexteur& agent, BornesDuTexte const& bornes,
                              CollectionZonesDeTexte& collection) {
    for (int pos = 0; pos < bornes.longueur;) {
        int const fin = DonneFinZoneBornee(agent, pos, bornes.longueur);
        auto zone = std::make_unique<ImplZoneDeTexteTEMP>(&agent, pos, fin);
        if (pos <= bornes.debutSelection && bornes.debutSelection < fin &&
            pos <= bornes.finSelection && bornes.finSelection <= fin) {
            zone->MetsSelection(bornes.debutSelection - pos, bornes.finSelection - pos);
        }
        if (!Remplis(*zone)) {
            return false;
        }
        collection.AjouteEmpruntee(*zones_.emplace_back(std::move(zone)), &agent);
        pos = fin;
    }
    return true;
}

void ZonesDeLAgent::Decale(int fin, int finZone, int delta) {
    for (auto& zone : zones_) {
        zone->Decale(fin, finZone, delta);
    }
}
