// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "DialogueModal.h"
#include "EtapeAnnulable.h"
#include "document/DocumentOuvert.h"
#include "modele/TexteSuivi.h"
#include "partage/ErreurDuService.h"

#include <optional>
#include <string>

namespace extension {

/// Why the range of the host's, expected to hold `attendu`, may not be corrected now; nothing when
/// it may. Main thread, as all here.
std::optional<compagnon::ErreurDuService>
RaisonDeNePasCorriger(DocumentOuvert const& document, DialogueModal const& dialogue,
                      ZoneOuverte& zone, compagnon::TexteSuivi const& croyance,
                      compagnon::Intervalle plage, std::u16string const& attendu);

/// Compares and replaces, in one go: the range must hold what the host believes. Follows in its
/// belief; where it throws `ErreurDuService` nothing was changed, and the refusal was noted.
void Corrige(DocumentOuvert& document, DialogueModal const& dialogue, ZoneOuverte& zone,
             compagnon::TexteSuivi& croyance, compagnon::Intervalle plage,
             std::u16string const& texte, Auteur const& auteur);

/// Replaces a range of the document as it stands (`plan` was just read); in one undo step.
void Remplace(DocumentOuvert& document, ZoneOuverte& zone, compagnon::PlanDePortions const& plan,
              compagnon::Intervalle plage, std::u16string const& texte, Auteur const& auteur);

} // namespace extension
