// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "document/DocumentOuvert.h"
#include "partage/Rapport.h"

namespace extension {

/// What the document is, and what of it was left out when it was last read, or cannot be changed.
/// Main thread; may throw UNO exceptions.
compagnon::Rapport RapportSur(DocumentOuvert const& document);

} // namespace extension
