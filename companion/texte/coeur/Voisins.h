// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Descripteur.h"

#include <string>
#include <vector>

namespace compagnon {

// The files that stand beside another one: its text while it is being saved, and copies of it.

/// The folder of an absolute path, and the name in it.
std::string DonneDossier(std::string const& chemin);
std::string DonneNom(std::string const& chemin);

/// No more than 200 bytes of a name, whole UTF-8 sequences only: with what is added to it a name
/// may have 255.
std::string Raccourcis(std::string nom);

/// "letter.txt" -> "letter.corrige-1.txt", the first number that is free; its path in `copie`.
Descripteur CreeCopie(std::string const& chemin, std::string& copie);

/// Where a file's next text is written, for its owner alone, under a name that tells that it is not
/// whole yet; the path in `voisin`. Locked as long as the descriptor lives.
Descripteur CreeVoisin(std::string const& chemin, std::string& voisin);
/// The text is whole: the file gets a name that tells so, in `voisin`. False with `errno` set.
bool Acheve(std::string& voisin);

/// Takes away what a program that was killed while it saved this file has left beside it: a part of
/// a text, or the whole of what the file holds by now. A whole text that the file does not hold may
/// be somebody's only one, and becomes a copy. Leaves alone what another program is writing, and
/// what is another person's. Paths of the copies.
std::vector<std::string> RangeLesRestes(std::string const& chemin);

} // namespace compagnon
