// SPDX-License-Identifier: MPL-2.0
#include "AlertesDuPilote.h"

#include "commun/EcritureJson.h"

namespace hote {

void AlertesDuPilote::Ecris(EcritureJson& json) {
    json.OuvreTableau();
    for (DAlerteInfo const& alerte : alertes_) {
        json.OuvreObjet();
        json.EcrisCle("genre").EcrisEntier(alerte.DonneGenre());
        json.EcrisCle("texte").EcrisTexte(alerte.DonneTexte().VersQString());
        json.EcrisCle("information").EcrisTexte(alerte.DonneInformation().VersQString());
        json.EcrisCle("details").EcrisTexte(alerte.DonneDetails().VersQString());
        json.FermeObjet();
    }
    json.FermeTableau();
    alertes_.clear();
}

} // namespace hote
