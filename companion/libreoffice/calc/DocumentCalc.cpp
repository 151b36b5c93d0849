// SPDX-License-Identifier: MPL-2.0
#include "DocumentCalc.h"

#include "SelectionCalc.h"

namespace extension {

void DocumentCalc::ParcoursZones(RecueilDeZones const& recueil) {
    cellules_ = ParcoursCalc(DonneModele(), Carnet(), cellules_, recueil).Parcours();
}

std::unique_ptr<SelectionVue> DocumentCalc::LisSelectionDuBureau() {
    return LisSelectionCalc(DonneModele(), cellules_);
}

} // namespace extension
