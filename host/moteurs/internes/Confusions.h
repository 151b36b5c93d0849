// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "moteurs/Remarque.h"

namespace hote {

/// Words taken for others that sound alike, where the words around tell: "je ne sais pas ou j'ai",
/// "your going to". Only what good sentences hardly ever have. Appended to `remarques`; French and
/// English parts alone. Any thread.
void ChercheConfusions(ParagrapheAExaminer const& paragraphe, std::vector<Remarque>& remarques);

} // namespace hote
