// SPDX-License-Identifier: MPL-2.0
#include "DocumentCalc.h"

#include "ChoixCalc.h"

namespace bureau {

void DocumentCalc::ParcoursZones(Recueil const& recueil) {
    cellules_ = ParcoursCalc(Modele(), Carnet(), cellules_, recueil).Parcours();
}

std::unique_ptr<Choix> DocumentCalc::LisChoixDuBureau() {
    return LisChoixCalc(Modele(), cellules_);
}

} // namespace bureau
