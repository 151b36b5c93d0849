// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "DialogueModal.h"
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
void Corrige(DocumentOuvert const& document, DialogueModal const& dialogue, ZoneOuverte& zone,
             compagnon::TexteSuivi& croyance, compagnon::Intervalle plage,
             std::u16string const& texte);

/// Replaces a range of the document as it stands (`lue` was just read); one named undo step.
void Remplace(DocumentOuvert const& document, ZoneOuverte& zone,
              compagnon::PlanDePortions const& plan, compagnon::Intervalle plage,
              std::u16string const& texte);

} // namespace extension
