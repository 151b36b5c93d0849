// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QString>

namespace hote {

/// How many single letters have to be put in, taken out, changed or swapped with their neighbour to
/// make one word of the other. `plafond` + 1 for anything beyond `plafond`.
int DonneDistance(QString const& un, QString const& autre, int plafond);

/// The word without the marks of its letters, in lower case: "Kraków": "krakow".
QString OteMarques(QString const& mot);

} // namespace hote
