// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "langue/Lexique.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <string>

namespace hote {

/// What the person asked for.
struct OptionsHote {
    enum class Commande { Aide, Version, Documents, Corrige, Dictionnaire, Moteurs, Pilote };

    Commande commande = Commande::Aide;
    QString id;                   ///< of `corrige` and `dictionnaire`; empty when not given
    std::optional<Langue> langue; ///< of the same; found out when not given
    bool automatique = false;     ///< of `corrige`
    bool json = false;            ///< of all but `pilote`
    QStringList ordre;            ///< of `moteurs`: a verb and what it is about; empty: the list
    std::string greffon;          ///< of those on documents, and `pilote`; empty when not given
};

} // namespace hote
