// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "DialogueModal.h"
#include "EtapeAnnulable.h"
#include "document/DocumentOuvert.h"
#include "modele/TexteSuivi.h"

#include <string>

namespace extension {

/// May the range of the host's, holding `attendu`, be corrected now? Main thread, as all here.
bool PeutCorriger(DocumentOuvert const& document, DialogueModal const& dialogue, ZoneOuverte& zone,
                  compagnon::TexteSuivi const& croyance, compagnon::Intervalle plage,
                  std::u16string const& attendu);

/// Compares and replaces, in one go: the range must hold what the host believes. Follows in its
/// belief; where it throws `ErreurDuService` nothing was changed, and the refusal was noted.
void Corrige(DocumentOuvert& document, DialogueModal const& dialogue, ZoneOuverte& zone,
             compagnon::TexteSuivi& croyance, compagnon::Intervalle plage,
             std::u16string const& texte, Auteur const& auteur);

/// Replaces a range of the document as it stands (`plan` was just read); in one undo step.
void Remplace(DocumentOuvert& document, ZoneOuverte& zone, compagnon::PlanDePortions const& plan,
              compagnon::Intervalle plage, std::u16string const& texte, Auteur const& auteur);

} // namespace extension
