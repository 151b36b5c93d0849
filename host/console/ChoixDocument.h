// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QString>

namespace hote {

/// The document to work on when the person named none: the only one within reach, or the one in
/// front when all are served by the same companion. Throws ErreurHote (kSortieDocument) when there
/// is none, or when several companions have some: it then lists them.
QString ChoisisDocument();

} // namespace hote
