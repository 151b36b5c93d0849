// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QString>

namespace hote {

/// How far one word is from the other: for each letter that has to be put in, taken out, changed or
/// swapped with its neighbour 2, for each that differs by its mark alone ("é", "e") 1.
int DonneDistance(QString const& un, QString const& autre);

/// The word without the marks of its letters, in lower case: "Kraków": "krakow".
QString OteMarques(QString const& mot);

} // namespace hote
