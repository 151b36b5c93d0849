// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "OptionsHote.h"
#include "commun/ErreurHote.h"

namespace hote {

/// The program's commands. Each returns the exit code, or throws ErreurHote. Main thread; a Qt
/// application object exists.
eCodeSortie ExecuteDocuments(OptionsHote const& options);
eCodeSortie ExecuteCorrige(OptionsHote const& options);
eCodeSortie ExecuteDiagnostic(OptionsHote const& options);
eCodeSortie ExecuteDictionnaire(OptionsHote const& options);
eCodeSortie ExecuteMoteurs(OptionsHote const& options);
eCodeSortie ExecutePilote(OptionsHote const& options);
eCodeSortie ExecuteVerifie(OptionsHote const& options);

} // namespace hote
