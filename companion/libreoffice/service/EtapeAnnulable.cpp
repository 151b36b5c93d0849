// SPDX-License-Identifier: MPL-2.0
#include "EtapeAnnulable.h"

namespace extension {

EtapeAnnulable::EtapeAnnulable(DocumentOuvert& document, std::u16string const& nom,
                               Auteur const& auteur)
    : pile_(document.Annulations()) {
    if (auteur.automatique) {
        pile_.EntreAutomatique(auteur.appelant);
    } else {
        pile_.Entre(nom);
    }
}

} // namespace extension
