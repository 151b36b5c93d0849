// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "LigneDeCommande.h"
#include "commun/ErreurHote.h"

namespace hote {

/// The program's commands. Each returns the exit code, or throws ErreurHote. Main thread; a Qt
/// application object exists.
eCodeSortie ExecuteDocuments(OptionsHote const& options);
eCodeSortie ExecuteCorrige(OptionsHote const& options);
eCodeSortie ExecuteDictionnaire(OptionsHote const& options);
eCodeSortie ExecutePilote(OptionsHote const& options);

/// Says something beside the matter on standard error: one line, beginning with the program's name.
void Avertis(std::string const& message);

} // namespace hote
