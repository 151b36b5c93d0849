// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "commun/ErreurHote.h"

#include <QString>

#include <string>

namespace hote {

/// Serves the document `id` to the window that started this process: requests on standard input,
/// answers on standard output, a JSON object a line, to the end of the input. What ends the work is
/// the last answer, {"op": "perdu", "raison", "code"}. Main thread, with an application object.
/// Where `id` is out of reach but `chemin` is not empty, a document in that file takes its place.
eCodeSortie ExecuteRelais(QString const& id, QString const& chemin,
                          std::string const& fichierGreffon);

} // namespace hote
