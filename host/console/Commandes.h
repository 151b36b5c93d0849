// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "ErreurHote.h"
#include "LigneDeCommande.h"

namespace hote {

/// The program's commands. Each returns the exit code, or throws ErreurHote. Main thread; a Qt
/// application object exists.
eCodeSortie ExecuteDocuments(Options const& options);
eCodeSortie ExecuteCorrige(Options const& options);
eCodeSortie ExecuteDictionnaire(Options const& options);
eCodeSortie ExecutePilote(Options const& options);

/// Says something beside the matter on standard error: one line, beginning with the program's name.
void Avertis(std::string const& message);

} // namespace hote
