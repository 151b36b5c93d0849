// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "AnalyseurJson.h"
#include "ParcoursJson.h"

#include <cstddef>
#include <string_view>

/// More zones than any document has: a reply could name forty million, for gigabytes of nothing.
inline constexpr std::size_t kZonesMax = std::size_t{2} * 1024 * 1024;

/// A zone-list document taken apart, so that its zones can be read one by one.
///
/// The whole is looked through at construction, without building anything: nothing of a document is
/// to be used before all of it is known to be right. Zones are its objects in the array of its last
/// "Zones"; what else stands in that array is passed over.
class DecoupageZones {
  public:
    enum class Forme {
        Lisible, ///< a parser that takes the whole would find these zones
        Refusee, ///< it would not take it, or there are more than `kZonesMax` zones, or more than
                 ///< `lectureJson::kValeursMax` values in one of them
        Autre, ///< with comments, escaped names, deep nesting or the like: to be parsed as a whole
    };

    /// `document` must outlive this. `analyseur` is used here, and free for other use afterwards.
    DecoupageZones(std::string_view document, AnalyseurJson& analyseur);

    Forme DonneForme() const noexcept { return forme_; }
    /// The next zone, from its brace to the one that closes it; false behind the last one. Of a
    /// readable document only.
    bool PrendsSuivante(std::string_view& zone);

  private:
    Forme Parcours(ParcoursJson parcours, AnalyseurJson& analyseur);
    static Forme PasseZones(ParcoursJson& parcours, AnalyseurJson& analyseur);

    ParcoursJson zones_{{}}; ///< in front of the next element of the array
    bool enReste_ = false;   ///< is there one?
    Forme forme_;
};
