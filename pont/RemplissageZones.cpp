// SPDX-License-Identifier: MPL-2.0
#include "RemplissageZones.h"

#include "CollectionZonesDeTexte.h"
#include "ListeDeZones.h"
#include "ZoneDeTexteOOoProxy.h"

void AjouteZones(std::string const& octets, VocalyneOpenOfficeProxyQDBUS* proxy,
                 ModuleProxyOOo* agent, CollectionZonesDeTexte& zones) {
    LisListeDeZones(octets, [&](ZoneRecue&& lue) {
        auto zone = std::make_unique<ZoneDeTexteOOoProxy>(proxy, agent, lue.texte, lue.nom,
                                                          lue.debutSel, lue.finSel);
        for (auto const& plage : lue.styles) {
            zone->AjouteStyle(plage);
        }
        zones.AjoutePossedee(std::move(zone));
    });
}
