// SPDX-License-Identifier: MPL-2.0
#include "PlanDePortions.h"

#include "Utf.h"

#include <algorithm>
#include <utility>

namespace compagnon {

namespace {

constexpr char16_t kTiretConditionnel = 0x00AD;
constexpr std::size_t kPortionsUsuelles = 8;

} // namespace

void PlanDePortions::Ajoute(GenrePortion genre, std::u16string source, std::uint16_t style) {
    if (portions_.empty()) {
        // Most paragraphs have a few portions: one allocation serves them all.
        portions_.reserve(kPortionsUsuelles);
        segments_.reserve(kPortionsUsuelles);
    }
    std::size_t const debut = texte_.size();
    portions_.push_back({genre, std::move(source), style});
    if (genre == GenrePortion::Texte || genre == GenrePortion::Champ ||
        genre == GenrePortion::Fixe) {
        AjouteTexte(portions_.size() - 1);
    } else if (genre == GenrePortion::Substitut) {
        std::u16string const& montre = portions_.back().source;
        texte_.push_back(montre.size() == 1 ? montre.front() : kRemplissage);
        segments_.push_back({debut, 1, portions_.size() - 1, 0});
    }
    styles_.Ajoute(static_cast<std::int32_t>(debut), static_cast<std::int32_t>(texte_.size()),
                   style);
}

void PlanDePortions::Ajoute(std::u16string source, std::vector<PlageDeStyle> const& styles) {
    bool const unSeul = styles.size() == 1 && styles[0].debut == 0 &&
                        static_cast<std::size_t>(styles[0].fin) == source.size();
    Ajoute(GenrePortion::Texte, std::move(source), unSeul ? styles[0].style : std::uint16_t{0});
    for (std::size_t i = 0; !unSeul && i < styles.size(); ++i) {
        auto const decalage = [&](std::int32_t unite) {
            return static_cast<std::int32_t>(
                DonneDecalage({portions_.size() - 1, static_cast<std::size_t>(unite)}));
        };
        styles_.Ajoute(decalage(styles[i].debut), decalage(styles[i].fin), styles[i].style);
    }
}

void PlanDePortions::AjouteTexte(std::size_t portion) {
    std::u16string const& source = portions_[portion].source;
    std::size_t const premier = segments_.size();
    std::size_t fait = 0;
    while (fait < source.size()) {
        std::size_t const fin = std::min(source.find(kTiretConditionnel, fait), source.size());
        if (fin > fait) {
            segments_.push_back({texte_.size(), fin - fait, portion, fait});
            texte_.append(source, fait, fin - fait);
        }
        fait = fin + 1;
    }
    if (segments_.size() == premier) {
        segments_.push_back({texte_.size(), 0, portion, source.size()});
        return;
    }
    std::size_t const debut = segments_[premier].debut;
    std::u16string_view const lu = std::u16string_view(texte_).substr(debut);
    if (!EstTransportable(lu)) {
        std::u16string transportable = RendsTransportable(lu);
        texte_.replace(debut, transportable.size(), transportable);
    }
}

std::optional<PlaceDansPortion> PlanDePortions::DonnePlace(std::size_t decalage,
                                                           bool versLaSuite) const {
    if (segments_.empty()) {
        return std::nullopt;
    }
    auto const dedans = [&](Segment const& segment) {
        return versLaSuite ? decalage < segment.debut + segment.taille
                           : decalage <= segment.debut + segment.taille;
    };
    auto trouve = std::partition_point(segments_.begin(), segments_.end(),
                                       [&](Segment const& segment) { return !dedans(segment); });
    if (trouve == segments_.end()) {
        --trouve;
    }
    std::size_t const avance = decalage - std::min(decalage, trouve->debut);
    return PlaceDansPortion{trouve->portion, trouve->source + std::min(avance, trouve->taille)};
}

std::size_t PlanDePortions::DonneDecalage(PlaceDansPortion place) const {
    // The last segment that starts at or before the place, in document order.
    auto const apres =
        std::partition_point(segments_.begin(), segments_.end(), [&](Segment const& segment) {
            return segment.portion < place.portion ||
                   (segment.portion == place.portion && segment.source <= place.unite);
        });
    if (apres == segments_.begin()) {
        return 0;
    }
    Segment const& segment = *(apres - 1);
    std::size_t const avance =
        segment.portion == place.portion ? place.unite - segment.source : segment.taille;
    return segment.debut + std::min(avance, segment.taille);
}

} // namespace compagnon
