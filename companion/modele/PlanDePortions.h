// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "NonLus.h"
#include "PlagesDeStyle.h"
#include "Portion.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace compagnon {

/// May it go into a document: could a person have typed it? The filler stands for something else,
/// and the other control characters mean anchors and fields to an office.
bool EstTapable(std::u16string_view texte) noexcept;

/// A place in the document: so many UTF-16 units into the source of a portion.
struct PlaceDansPortion {
    std::size_t portion = 0;
    std::size_t unite = 0;
};

/// The exact map between a zone's text, as a corrector reads it, and the portions of the paragraph
/// it was read from. Offsets are UTF-16 units of the zone's text.
///
/// A soft hyphen stands as nothing; a unit that cannot travel (U+0000, a lone surrogate) as the
/// filler, one for one. Pure data: holds no object of the office. One thread at a time.
class PlanDePortions {
  public:
    /// Appends a portion; linear in its source.
    void Ajoute(GenrePortion genre, std::u16string source = {}, std::uint16_t style = 0);
    /// Appends letters of one format whose styles differ by script: `styles` in order, in units of
    /// the source.
    void Ajoute(std::u16string source, std::vector<PlageDeStyle> const& styles);
    /// From now on nothing in it may be changed: any edit would take something along that the
    /// portions do not show.
    void Fige() noexcept { fige_ = true; }
    /// Something in the paragraph that a person may have put there is not among the portions' text.
    void NoteNonLu(RaisonNonLu raison) noexcept { nonLus_.Note(raison); }

    std::u16string const& DonneTexte() const noexcept { return texte_; }
    std::vector<PlageDeStyle> const& DonneStyles() const noexcept { return styles_.Donne(); }
    std::vector<Portion> const& DonnePortions() const noexcept { return portions_; }
    NonLus const& DonneNonLus() const noexcept { return nonLus_; }

    /// May any text at all be put in place of this range (in bounds) without harm to anything that
    /// is not a letter? False as soon as the range holds such a thing.
    bool PeutModifier(std::size_t debut, std::size_t fin) const;

    /// The steps that make the range (in bounds) read `texte`: only what differs changes, each
    /// letter in the format of the one it replaces. Nothing when no step is safe; no step at all
    /// when the range reads so already.
    std::optional<std::vector<EtapeEdition>> Prepare(std::size_t debut, std::size_t fin,
                                                     std::u16string_view texte) const;

    /// Where a zone offset (at most the text's size) stands. Between two portions: at the end of
    /// the first, or for `versLaSuite` at the start of the second. Nothing in a plan without place.
    std::optional<PlaceDansPortion> DonnePlace(std::size_t decalage, bool versLaSuite) const;

    /// The zone offset of a place in the document: what is not read counts as nothing.
    std::size_t DonneDecalage(PlaceDansPortion place) const;

  private:
    /// Consecutive units of the zone that are consecutive in one portion too.
    struct Segment {
        std::size_t debut;   // in the zone
        std::size_t taille;  // 0: an empty portion, where letters can be put in
        std::size_t portion; // index
        std::size_t source;  // unit in the portion's source
    };
    /// One portion's share of an edit: the range of the zone that stands in it.
    struct Morceau {
        std::size_t portion;
        std::size_t debut; // in the zone
        std::size_t fin;
        std::size_t source; // where `debut` stands in the portion; all that counts when it is empty
    };

    void AjouteTexte(std::size_t portion);
    std::optional<std::vector<Morceau>> Decoupe(std::size_t debut, std::size_t fin) const;
    std::optional<Morceau> PointInsertion(std::size_t decalage) const;
    bool ContientObstacle(std::size_t avant, std::size_t apres) const;
    bool EstAuBordDe(GenrePortion genre, std::size_t portion, bool apres) const;
    bool EstChamp(std::size_t portion) const {
        return portions_[portion].genre == GenrePortion::Champ;
    }
    std::size_t DonneSource(std::size_t portion, std::size_t decalage) const;
    bool Ecris(Morceau const& morceau, std::u16string_view part,
               std::vector<EtapeEdition>& etapes) const;
    bool EcrisSource(std::size_t portion, std::size_t debut, std::size_t fin,
                     std::u16string const& ajout, std::vector<EtapeEdition>& etapes) const;
    bool Prolonge(std::size_t decalage, bool versLaSuite, std::size_t limite,
                  std::u16string_view ajout, std::vector<EtapeEdition>& etapes) const;
    bool VideUneEtendue(std::vector<Morceau> const& morceaux,
                        std::vector<std::u16string_view> const& parts) const;

    std::u16string texte_;
    PlagesDeStyle styles_;
    std::vector<Portion> portions_;
    std::vector<Segment> segments_;
    NonLus nonLus_;
    bool fige_ = false;
};

} // namespace compagnon
