// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Intervalle.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace compagnon {

/// A text that several holders look at and nobody changes: it is replaced as a whole.
using TextePartage = std::shared_ptr<std::u16string const>;

/// Why a range cannot be used.
enum class Refus {
    Aucun,       ///< it can
    Inconnu,     ///< this host was never given the zone
    HorsLimites, ///< outside the text, or its bounds inverted
    CoupePaire,  ///< a bound stands in the middle of a surrogate pair
    Different,   ///< it does not hold the expected text
    Incertain,   ///< the text has changed there, or its place cannot be told for certain
};

/// Where a range of the host's stands in the document, or why that cannot be said.
struct Localisation {
    Refus refus = Refus::Aucun;
    Intervalle plage; ///< in the document; (0, 0) when refused

    explicit operator bool() const noexcept { return refus == Refus::Aucun; }
};

/// What one host believes to stand in one zone: the text that it was last given, with its own
/// corrections since. Maps the host's offsets to those of the document as it stands now, and never
/// guesses: a range is found again only when every way to explain the difference by one edit puts
/// it in the same place with the same letters.
///
/// Say the belief and the document share p units at the start and s at the end, and the shorter of
/// them has m. Letters that could belong to either side (p + s > m, as when "aa" became "aaa")
/// belong to neither: the start that is certain ends at m - s then, else at p, and the end that is
/// certain has m - p units, else s. A range keeps its place inside the certain start and shifts
/// inside the certain end; anything else is refused. An insertion point must stand strictly inside
/// of one: at the edge it could lie on either side of the other edit. A range is refused, too,
/// where a combining mark has come to touch it: its last letter is another one now.
///
/// The texts passed in must be those that travel (`RendsTransportable`). One thread at a time.
/// Copies share their texts.
class TexteSuivi {
  public:
    /// The host has just been given this text; what was before is forgotten.
    void Donne(TextePartage texte) noexcept;
    /// The host has just been given `texte`. When that is what it believes already, its own copy
    /// goes on being used, and the answer is true; otherwise nothing happens: false.
    bool Confirme(std::u16string_view texte) noexcept;
    /// The host knows nothing (any more): every range is refused.
    void Oublie() noexcept;
    /// What the host believes; empty when nothing is known.
    std::u16string_view DonneCroyance() const noexcept;
    /// The same, to be shared; null when nothing is known.
    TextePartage const& DonneTexte() const noexcept { return croyance_; }

    /// Where `plage` (the host's offsets) stands in `document`. Linear, without allocation.
    Localisation Localise(Intervalle plage, std::u16string_view document) const noexcept;
    /// The same for a range that must hold `attendu`.
    Localisation Localise(Intervalle plage, std::u16string_view document,
                          std::u16string_view attendu) const noexcept;

    /// The host's correction of `plage` was made: the belief follows.
    void NoteCorrection(Intervalle plage, std::u16string_view remplacement);
    /// The host's correction of `plage` was refused. A host that does not wait for the answer has
    /// put it into its own copy, another has not: only up to its start are both right, and later
    /// ranges are refused until the text is given again.
    void NoteRefus(Intervalle plage) noexcept;

  private:
    TextePartage croyance_;
    std::size_t borneSure_ = 0; // see NoteRefus; the belief's whole size when none was refused
};

} // namespace compagnon
