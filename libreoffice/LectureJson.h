// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "PlageStyle.h"
#include "UniChaine.h"

#include <json/value.h>

#include <string>

// How the readers of zone documents take what JsonCpp parsed. They are lenient about everything but
// integers: whatever is missing or is no object reads as null, whatever is no text as empty.
namespace lectureJson {

/// Parses the UTF-8 bytes. Whether it worked is deliberately not told: what the parser left in the
/// root is used. Nesting beyond the parser's depth gives null.
Json::Value Analyse(std::string const& octets);

/// A member, or null when `objet` is no object or has none of that name. The reference lives as
/// long as `objet`.
Json::Value const& Membre(Json::Value const& objet, char const* cle);

/// A text member, still encoded; empty when it is an array or an object.
std::string Texte(Json::Value const& objet, char const* cle);

/// An integer member, 0 when missing or null. Throws Json::RuntimeError, "Type is not convertible
/// to int", when it is no 32-bit signed integer.
int Entier(Json::Value const& objet, char const* cle);

/// Is it an array, or null (which counts as an empty one)?
bool EstListe(Json::Value const& valeur);

/// One style run of a zone. Throws as `Entier` does.
PlageStyle Plage(Json::Value const& plage);

} // namespace lectureJson
