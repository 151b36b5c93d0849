// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Contrat.h"
#include "UniChaine.h"

#include <json/value.h>

#include <cstddef>
#include <string>
#include <string_view>

// How the readers of zone documents take what JsonCpp parsed. They are lenient about everything but
// integers: whatever is missing or is no object reads as null, whatever is no text as empty.
namespace lectureJson {

/// More values than a tree may have, which takes 160 bytes for each: a style run is four of them,
/// and no zone has half a million runs.
inline constexpr std::size_t kValeursMax = std::size_t{2} * 1024 * 1024;

/// Deeper nesting than any document's. JsonCpp has a limit of its own besides, which differs from
/// one release of it to the next (1,000, then 256).
inline constexpr int kProfondeurMax = 250;

/// The number of values in a document, or up to twice as much: by its marks alone, so that one with
/// too many is known before anything is built. Marks inside texts count too.
std::size_t CompteValeurs(std::string_view octets);

/// What became of a document parsed as a whole.
struct DocumentAnalyse {
    bool entier;        ///< it parsed from end to end
    Json::Value racine; ///< what the parser left, in both cases
};

/// Parses the UTF-8 bytes. More than `kValeursMax` values or deeper nesting than
/// `kProfondeurMax` gives null, and not whole.
DocumentAnalyse Analyse(std::string const& octets);

/// A member, or null when `objet` is no object or has none of that name. The reference lives as
/// long as `objet`.
Json::Value const& DonneMembre(Json::Value const& objet, char const* cle);

/// The text of a text member, still encoded; empty when it is an array or an object. `tampon` holds
/// it where the member is no text but reads as one; the view lives as long as both.
std::string_view DonneTexte(Json::Value const& objet, char const* cle, std::string& tampon);

/// An integer member, 0 when missing or null. Throws Json::RuntimeError, "Type is not convertible
/// to int", when it is no 32-bit signed integer.
int DonneEntier(Json::Value const& objet, char const* cle);

/// Is it an array, or null (which counts as an empty one)?
bool EstListe(Json::Value const& valeur);

/// One style run of a zone. Throws as `DonneEntier` does.
contrat::PlageDeStyle DonnePlage(Json::Value const& plage);

} // namespace lectureJson
