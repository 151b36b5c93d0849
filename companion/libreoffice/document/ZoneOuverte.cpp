// SPDX-License-Identifier: MPL-2.0
#include "ZoneOuverte.h"

#include "CarnetDeZones.h"

namespace extension {

void ZoneOuverte::Quitte(CarnetDeZones& carnet) {
    carnet.OublieCle(cle_);
}

} // namespace extension
