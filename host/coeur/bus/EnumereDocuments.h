// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "ListeDocuments.h"

namespace hote {

/// Asks every companion on the session bus for its documents. Returns within `delaiMs`
/// milliseconds (and what the bus itself takes for a connection), whatever companions do: one that
/// answers late, wrongly or never is named in the warnings. Throws ErreurHote (kSortieDocument)
/// when there is no session bus. Main thread; needs a Qt application object, whose events run.
ListeDocuments EnumereDocuments(int delaiMs);

/// Long enough for a busy office, short enough for a person who waits.
constexpr int kDelaiDocumentsMs = 3000;

/// What of a service's name names the companion: empty when the name is not a companion's, or its
/// last part cannot stand in an object path.
QString DonneInstance(QString const& service);

} // namespace hote
