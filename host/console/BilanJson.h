// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "correction/Bilan.h"
#include "langue/Lexique.h"

#include <string>

namespace hote {

/// What is told about a correction besides its result.
struct EnTete {
    QString id;
    QString titre;
    Langue langue;
    bool langueTrouvee;
    bool automatique;
};

/// A result as one line of JSON; the form is in host/README.md.
std::string DonneBilanJson(EnTete const& enTete, Bilan const& bilan);

} // namespace hote
