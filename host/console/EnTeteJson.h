// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "langue/Lexique.h"

#include <QString>

namespace hote {

class EcritureJson;

/// What every result in JSON tells of the document first.
struct EnTeteJson {
    QString id;
    QString titre;
    Langue langue;
    bool langueTrouvee;
};

/// Writes its members into the object that is open.
void EcrisEnTete(EnTeteJson const& enTete, EcritureJson& json);

} // namespace hote
