// SPDX-License-Identifier: MPL-2.0
#include "RaisonDeRefuser.h"

using contrat::Erreur;

namespace extension {

std::optional<Erreur> RaisonDeRefuser(DocumentOuvert const& document,
                                      DialogueModal const& dialogue) {
    if (document.EstEnLectureSeule()) {
        return Erreur::LectureSeule;
    }
    if (dialogue.EstOuvert()) {
        return Erreur::DialogueOuvert;
    }
    return std::nullopt;
}

std::optional<Erreur> RaisonDeRefuser(DocumentOuvert const& document, DialogueModal const& dialogue,
                                      ZoneOuverte& zone) {
    if (auto const raison = RaisonDeRefuser(document, dialogue)) {
        return raison;
    }
    if (zone.EstProtegee()) {
        return Erreur::Protege;
    }
    return zone.EstEnFrappe() ? std::make_optional(Erreur::Frappe) : std::nullopt;
}

} // namespace extension
