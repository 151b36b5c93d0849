// SPDX-License-Identifier: MPL-2.0
#include "AlertesDuPilote.h"

#include "commun/EcritureJson.h"
#include "console/AlertesConsole.h"

namespace hote {

eReponseAlerte AlertesNotees::Presente(QWidget* /*parent*/, DAlerteInfo const& info) {
    alertes_.push_back(info);
    return DonneReponseImmediate(info);
}

void AlertesNotees::Ecris(EcritureJson& json) {
    json.Tableau();
    for (DAlerteInfo const& alerte : alertes_) {
        json.Objet();
        json.Cle("genre").Entier(alerte.DonneGenre());
        json.Cle("texte").Texte(alerte.DonneTexte().VersQString());
        json.Cle("information").Texte(alerte.DonneInformation().VersQString());
        json.Cle("details").Texte(alerte.DonneDetails().VersQString());
        json.FinObjet();
    }
    json.FinTableau();
    alertes_.clear();
}

} // namespace hote
