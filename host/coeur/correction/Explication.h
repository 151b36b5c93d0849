// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace hote {

/// A correction in a text that holds it: [debut, fin) stands where `avant` stood.
struct Remplacement {
    int debut;
    int fin;
    QString avant;
};

/// Which corrections were made, when nothing else happened to a text: explains `reel` as `cru` with
/// some of the corrections not made. The corrections stand in `cru` in order, without overlap.
/// True for one that every explanation needs; nothing when there is no explanation.
std::optional<std::vector<bool>>
Explique(QString const& cru, std::vector<Remplacement> const& remplacements, QString const& reel);

} // namespace hote
