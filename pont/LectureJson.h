// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Contrat.h"
#include "UniChaine.h"

#include <json/reader.h>
#include <json/value.h>

#include <cstddef>
#include <string>
#include <string_view>

// How the readers of zone documents take what JsonCpp parsed. They are lenient about everything but
// integers: whatever is missing or is no object reads as null, whatever is no text as empty.
namespace lectureJson {

/// More values than a tree may have, which takes 160 bytes for each: a style run is four of them,
/// and no zone has half a million runs.
inline constexpr std::size_t kValeursMax = 2 * 1024 * 1024;

/// The number of values in a document, or up to twice as much: by its marks alone, so that one with
/// too many is known before anything is built. Marks inside texts count too.
std::size_t CompteValeurs(std::string_view octets);

/// Parses one document after the other; cheaper than a parser for each.
class AnalyseurJson {
  public:
    /// Did the UTF-8 bytes parse? The root is what the parser left, in both cases. Throws
    /// Json::Exception for nesting beyond the parser's depth.
    bool Analyse(std::string_view octets) {
        // By pointers: given a std::string, the reader would keep a copy of the whole document.
        // Without the comments: it collects them at a cost that grows with their square.
        return lecteur_.parse(octets.data(), octets.data() + octets.size(), racine_, false);
    }
    /// Valid until the next document.
    Json::Value& DonneRacine() noexcept { return racine_; }

  private:
// The reader that zone documents are defined by; its successor parses by other rules.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
    Json::Reader lecteur_;
#pragma GCC diagnostic pop
    Json::Value racine_;
};

/// What became of a document parsed as a whole.
struct Document {
    bool entier;        ///< it parsed from end to end
    Json::Value racine; ///< what the parser left, in both cases
};

/// Parses the UTF-8 bytes. Nesting beyond the parser's depth, or more than `kValeursMax` values,
/// gives null, and not whole.
Document Analyse(std::string const& octets);

/// A member, or null when `objet` is no object or has none of that name. The reference lives as
/// long as `objet`.
Json::Value const& Membre(Json::Value const& objet, char const* cle);

/// The text of a text member, still encoded; empty when it is an array or an object. `tampon` holds
/// it where the member is no text but reads as one; the view lives as long as both.
std::string_view Texte(Json::Value const& objet, char const* cle, std::string& tampon);

/// An integer member, 0 when missing or null. Throws Json::RuntimeError, "Type is not convertible
/// to int", when it is no 32-bit signed integer.
int Entier(Json::Value const& objet, char const* cle);

/// Is it an array, or null (which counts as an empty one)?
bool EstListe(Json::Value const& valeur);

/// One style run of a zone. Throws as `Entier` does.
contrat::PlageDeStyle Plage(Json::Value const& plage);

} // namespace lectureJson
