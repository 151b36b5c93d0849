// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Contrat.h"
#include "DialogueModal.h"
#include "document/DocumentOuvert.h"

#include <optional>

namespace extension {

// Why nothing may be changed now, judged here alone and in the order of protocol/README.md:
// read-only, a dialogue, protection, typing. What depends on the range and the new text comes after
// (Correction.h). Nothing when it may. May throw UNO exceptions. Main thread.

/// Anywhere in the document.
std::optional<contrat::Erreur> RaisonDeRefuser(DocumentOuvert const& document,
                                               DialogueModal const& dialogue);
/// In that zone of it.
std::optional<contrat::Erreur> RaisonDeRefuser(DocumentOuvert const& document,
                                               DialogueModal const& dialogue, ZoneOuverte& zone);

} // namespace extension
