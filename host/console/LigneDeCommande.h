// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "langue/Lexique.h"

#include <QStringList>

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

/// Reads the arguments, the program's name first. Throws ErreurHote (kSortieUsage) when they are
/// wrong: unknown commands and options, missing or wrong values, arguments too many.
OptionsHote AnalyseLigne(QStringList const& arguments);

/// The few lines shown when the command line is wrong, and the whole help; both end in a line feed.
std::string DonneUsage();
std::string DonneAide();

} // namespace hote
