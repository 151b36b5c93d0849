// SPDX-License-Identifier: MPL-2.0
#include "NomsDeZones.h"

#include "partage/EcritureNoms.h"

namespace extension {

std::string NomsDeZones::EnJson() const {
    compagnon::EcritureNoms ecriture;
    for (auto const& [zone, lieu] : lieux_) {
        ecriture.Ajoute(zone, DisLieu(lieu));
    }
    return ecriture.Termine();
}

} // namespace extension
