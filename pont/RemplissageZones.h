// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <string>

class CollectionZonesDeTexte;
class ModuleProxyOOo;
class VocalyneOpenOfficeProxyQDBUS;

/// Appends the zones of a zone-list document (UTF-8 bytes) to the collection, which owns them.
/// `proxy` and `agent` are handed to each zone; either may be null. Throws what `LisListeDeZones`
/// throws; the zones before it stay.
void AjouteZones(std::string const& octets, VocalyneOpenOfficeProxyQDBUS* proxy,
                 ModuleProxyOOo* agent, CollectionZonesDeTexte& zones);
