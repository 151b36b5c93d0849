// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "langue/Lexique.h"

#include <QString>

#include <optional>
#include <string>

namespace hote {

/// What the person asked for.
struct OptionsHote {
    enum class Commande { Aide, Version, Documents, Corrige, Dictionnaire, Pilote };

    Commande commande = Commande::Aide;
    QString id;                   ///< of `corrige` and `dictionnaire`; empty when not given
    std::optional<Langue> langue; ///< of the same; found out when not given
    bool automatique = false;     ///< of `corrige`
    bool json = false;            ///< of all but `pilote`
    std::string greffon;          ///< of all but `documents`; empty when not given
};

} // namespace hote
