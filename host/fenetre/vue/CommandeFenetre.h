// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "commun/ErreurHote.h"

#include <QString>

#include <string>

namespace hote {

/// What Qt wants to be told before the application object is made.
void PrepareFenetre();

/// Opens the window of the document `id`, or shows the one that is open, and stays until it is
/// closed. `page`: the one to show ("mots"); may be empty. Throws ErreurHote where there is no
/// screen. Main thread, with an application object.
eCodeSortie ExecuteFenetre(QString const& id, std::string const& fichierGreffon,
                           QString const& page);

} // namespace hote
