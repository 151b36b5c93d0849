// SPDX-License-Identifier: MPL-2.0
#include "Rapporteur.h"

#include "commun/EcritureJson.h"
#include "console/Sortie.h"

namespace hote {

void Rapporteur::Ecris(char const* fait, char const* sujet, std::string const& texte) {
    EcritureJson json;
    json.OuvreObjet();
    json.EcrisCle("fait").EcrisTexte(QString::fromUtf8(fait));
    json.EcrisCle("sujet").EcrisTexte(QString::fromUtf8(sujet));
    json.EcrisCle("texte").EcrisTexte(QString::fromStdString(texte));
    json.FermeObjet();
    sortie_.Ecris(json.DonneJson() + '\n');
}

} // namespace hote
