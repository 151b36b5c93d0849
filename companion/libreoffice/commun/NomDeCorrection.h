// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <string>

namespace extension {

/// The name of a correction in the undo list, in the person's language. Any thread.
std::u16string NomDeCorrection(std::u16string const& avant, std::u16string const& apres);

/// The name there of a run of automatic corrections, however long. Any thread.
std::u16string NomDeSuiteAutomatique();

} // namespace extension
