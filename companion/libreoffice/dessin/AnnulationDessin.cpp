// SPDX-License-Identifier: MPL-2.0
#include "AnnulationDessin.h"

#include "TexteDessine.h"
#include "document/EtapePropre.h"

#include <utility>

namespace extension {

void AjouteAnnulation(std::shared_ptr<TexteDessine> const& texte, Gestes gestes,
                      std::u16string const& nom) {
    // Where the text is gone, or another program has changed it, it is left as it is.
    AjouteEtape(texte->DonneModele(), nom, [texte, gestes = std::move(gestes)](bool aLEnvers) {
        texte->Rejoue(gestes, aLEnvers);
    });
}

} // namespace extension
