// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "reglages/ReglagesHote.h"

#include <QString>
#include <QStringList>

#include <string>
#include <vector>

namespace hote {

/// What a person is told of an engine.
struct LigneMoteur {
    QString nom;
    char const* etat; ///< one of those below
    QString version;
    QStringList langues;
    std::string message; ///< what to do; empty when all is well
};

inline constexpr char const* kPret = "pret";
inline constexpr char const* kAbsent = "absent";
inline constexpr char const* kEteint = "eteint";
inline constexpr char const* kPanne = "panne";

/// All engines as they stand. `demarre`: those outside the process are started for it, seconds for
/// some; else they count as ready where they are installed.
std::vector<LigneMoteur> ExamineMoteurs(ReglagesHote const& reglages, bool demarre);

/// One of them on a line, for a person, with its line feed.
std::string DonneTexte(LigneMoteur const& ligne);

} // namespace hote
