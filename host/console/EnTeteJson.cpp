// SPDX-License-Identifier: MPL-2.0
#include "EnTeteJson.h"

#include "ChoixLangue.h"
#include "commun/EcritureJson.h"

namespace hote {

void EcrisEnTete(EnTeteJson const& enTete, EcritureJson& json) {
    json.EcrisCle("id").EcrisTexte(enTete.id);
    json.EcrisCle("titre").EcrisTexte(enTete.titre);
    json.EcrisCle("langue").EcrisTexte(DonneCodeLangue(enTete.langue));
    json.EcrisCle("langueTrouvee").EcrisBooleen(enTete.langueTrouvee);
}

} // namespace hote
