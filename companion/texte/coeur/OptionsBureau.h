// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <string>
#include <vector>

namespace compagnon {

enum class Action { Sers, Aide, Version, Mauvaise };

/// What the command line asks for.
struct OptionsBureau {
    Action action = Action::Sers;
    std::string erreur; ///< what is wrong with it, for `Mauvaise`
    std::string instance;
    bool sansEnregistrer = false;
    bool finAvecHote = false;
    std::vector<std::string> fichiers; ///< bytes as the system has them
};

/// Permutes `argv`. Not for two threads.
OptionsBureau LisOptions(int argc, char* argv[]);

/// The usage, in the person's language.
std::string DonneAide();

} // namespace compagnon
