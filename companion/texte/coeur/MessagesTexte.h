// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "EcritureSure.h"
#include "LectureFichier.h"
#include "Resultat.h"

#include <initializer_list>
#include <string>
#include <string_view>

namespace compagnon {

/// One message in both languages, with "{1}", "{2}"… for what is filled in.
struct Bilingue {
    char const* francais;
    char const* anglais;
};

/// Does the person read French? By LC_ALL, LC_MESSAGES, LANG, the first that is set; English
/// otherwise. Read once.
bool ParleFrancais();

/// The message in the person's language, in UTF-8. Arguments go in as they are, bytes included.
std::string Dis(Bilingue message, std::initializer_list<std::string_view> arguments = {});

/// What to tell about a file that cannot be served.
std::string DisProbleme(LectureFichier const& lecture, std::string_view chemin);
/// What to tell about a save that is not `Faite`.
std::string DisEcriture(Ecriture const& ecriture, std::string_view chemin);
/// What to tell a caller.
std::string DisErreur(Erreur const& erreur);
/// The D-Bus error's name.
char const* NomErreur(CodeErreur code) noexcept;

} // namespace compagnon
