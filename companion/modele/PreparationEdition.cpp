// SPDX-License-Identifier: MPL-2.0
// The editing half of PlanDePortions: which steps change a range and nothing else.
#include "PlanDePortions.h"

#include "EditionMinimale.h"
#include "Frontieres.h"
#include "Repartition.h"
#include "Utf.h"

#include <algorithm>

namespace compagnon {

namespace {

bool EstObstacle(GenrePortion genre) noexcept {
    return genre == GenrePortion::Exclue || genre == GenrePortion::Substitut ||
           genre == GenrePortion::Ancre || genre == GenrePortion::Attache ||
           genre == GenrePortion::Fixe;
}

bool EstFaiteDeLettres(GenrePortion genre) noexcept {
    return genre == GenrePortion::Texte || genre == GenrePortion::Champ;
}

} // namespace

bool EstTapable(std::u16string_view texte) noexcept {
    return EstTransportable(texte) && std::none_of(texte.begin(), texte.end(), [](char16_t unite) {
               return unite < 0x20 && unite != u'\t' && unite != u'\n';
           });
}

bool PlanDePortions::ContientObstacle(std::size_t avant, std::size_t apres) const {
    for (std::size_t i = avant + 1; i < apres; ++i) {
        if (EstObstacle(portions_[i].genre)) {
            return true;
        }
    }
    return false;
}

bool PlanDePortions::EstAuBordDe(GenrePortion genre, std::size_t portion, bool apres) const {
    std::size_t i = portion;
    while (apres ? i + 1 < portions_.size() : i > 0) {
        i = apres ? i + 1 : i - 1;
        Portion const& voisine = portions_[i];
        if (voisine.genre == genre) {
            return true;
        }
        if (!voisine.EstSansEtendue()) {
            return false;
        }
    }
    return false;
}

std::size_t PlanDePortions::DonneSource(std::size_t portion, std::size_t decalage) const {
    auto const apres =
        std::partition_point(segments_.begin(), segments_.end(), [&](Segment const& segment) {
            return segment.portion < portion ||
                   (segment.portion == portion && segment.debut <= decalage);
        });
    Segment const& segment = *(apres - 1);
    return segment.source + (decalage - segment.debut);
}

auto PlanDePortions::Decoupe(std::size_t debut, std::size_t fin) const
    -> std::optional<std::vector<Morceau>> {
    std::vector<Morceau> morceaux;
    auto const premier =
        std::partition_point(segments_.begin(), segments_.end(), [&](Segment const& segment) {
            return segment.debut + segment.taille <= debut;
        });
    for (auto it = premier; it != segments_.end() && it->debut < fin; ++it) {
        if (it->taille == 0) {
            continue;
        }
        if (!EstFaiteDeLettres(portions_[it->portion].genre)) {
            return std::nullopt;
        }
        std::size_t const de = std::max(debut, it->debut);
        std::size_t const a = std::min(fin, it->debut + it->taille);
        if (!morceaux.empty() && morceaux.back().portion == it->portion) {
            morceaux.back().fin = a;
            continue;
        }
        if (!morceaux.empty() && ContientObstacle(morceaux.back().portion, it->portion)) {
            return std::nullopt;
        }
        morceaux.push_back({it->portion, de, a, it->source + (de - it->debut)});
    }
    return morceaux;
}

auto PlanDePortions::PointInsertion(std::size_t decalage) const -> std::optional<Morceau> {
    Segment const* choisi = nullptr;
    bool choisiFinit = false;
    auto const premier =
        std::partition_point(segments_.begin(), segments_.end(), [&](Segment const& segment) {
            return segment.debut + segment.taille < decalage;
        });
    for (auto it = premier; it != segments_.end() && it->debut <= decalage; ++it) {
        // At its borders letters stand outside of a field, as when typing.
        bool const dansUnChamp =
            EstChamp(it->portion) && it->debut < decalage && decalage < it->debut + it->taille;
        if (portions_[it->portion].genre != GenrePortion::Texte && !dansUnChamp) {
            continue;
        }
        // Letters go with the ones before them, as when typing; an empty portion comes last.
        bool const finit = it->debut < decalage;
        bool const mieux = choisi == nullptr || (finit && !choisiFinit) ||
                           (choisi->taille == 0 && it->taille > 0 && !choisiFinit);
        if (mieux) {
            choisi = &*it;
            choisiFinit = finit;
        }
    }
    if (choisi == nullptr) {
        return std::nullopt;
    }
    return Morceau{choisi->portion, decalage, decalage,
                   choisi->source + (decalage - choisi->debut)};
}

bool PlanDePortions::PeutModifier(std::size_t debut, std::size_t fin) const {
    if (fige_) {
        return false;
    }
    if (debut == fin) {
        return PointInsertion(debut).has_value();
    }
    auto const morceaux = Decoupe(debut, fin);
    if (!morceaux || morceaux->empty()) {
        return false;
    }
    for (Morceau const& morceau : *morceaux) {
        Portion const& portion = portions_[morceau.portion];
        if (EstChamp(morceau.portion)) {
            continue;
        }
        bool const auDebut = morceau.source == 0;
        bool const entiere =
            auDebut && DonneSource(morceau.portion, morceau.fin - 1) + 1 == portion.source.size();
        if (auDebut && EstAuBordDe(GenrePortion::Repere, morceau.portion, false)) {
            return false;
        }
        if (entiere && portion.source.size() == 1 &&
            EstAuBordDe(GenrePortion::Limite, morceau.portion, true)) {
            return false;
        }
    }
    return true;
}

bool PlanDePortions::VideUneEtendue(std::vector<Morceau> const& morceaux,
                                    std::vector<std::u16string_view> const& parts) const {
    auto const appartient = [&](std::size_t i) {
        return EstFaiteDeLettres(portions_[i].genre) || portions_[i].genre == GenrePortion::Repere;
    };
    for (Morceau const& vise : morceaux) {
        std::size_t debut = vise.portion;
        while (debut > 0 && appartient(debut - 1)) {
            --debut;
        }
        std::size_t fin = vise.portion + 1;
        while (fin < portions_.size() && appartient(fin)) {
            ++fin;
        }
        bool const entreLimites = debut > 0 && fin < portions_.size() &&
                                  portions_[debut - 1].genre == GenrePortion::Limite &&
                                  portions_[fin].genre == GenrePortion::Limite;
        if (!entreLimites) {
            continue;
        }
        std::size_t reste = 0;
        for (std::size_t i = debut; i < fin; ++i) {
            reste += portions_[i].source.size();
        }
        for (std::size_t i = 0; i < morceaux.size(); ++i) {
            Morceau const& morceau = morceaux[i];
            if (morceau.portion >= debut && morceau.portion < fin) {
                reste -= DonneSource(morceau.portion, morceau.fin - 1) + 1 - morceau.source;
                reste += parts[i].size();
            }
        }
        if (reste == 0) {
            return true;
        }
    }
    return false;
}

bool PlanDePortions::Ecris(Morceau const& morceau, std::u16string_view part,
                           std::vector<EtapeEdition>& etapes) const {
    std::u16string_view const ancien =
        std::u16string_view(texte_).substr(morceau.debut, morceau.fin - morceau.debut);
    EditionMinimale const edition = EditionMinimale::Entre(ancien, part);
    if (edition.EstVide()) {
        return true;
    }
    std::size_t const portion = morceau.portion;
    std::size_t const a = morceau.debut + edition.debut;
    if (edition.retire == 0) {
        // At an end of the piece they would take what stands beyond it for their own.
        bool const auDebut = edition.debut == 0;
        if (morceau.debut < morceau.fin && (auDebut || a == morceau.fin) &&
            Prolonge(a, auDebut, auDebut ? morceau.fin : morceau.debut, edition.ajout, etapes)) {
            return true;
        }
        std::size_t const u = edition.debut == 0 ? morceau.source : DonneSource(portion, a - 1) + 1;
        etapes.push_back({portion, u, u, std::u16string(edition.ajout), portions_[portion].source});
        return true;
    }
    return EcrisSource(portion, DonneSource(portion, a),
                       DonneSource(portion, a + edition.retire - 1) + 1,
                       std::u16string(edition.ajout), etapes);
}

bool PlanDePortions::EcrisSource(std::size_t portion, std::size_t debut, std::size_t fin,
                                 std::u16string const& ajout,
                                 std::vector<EtapeEdition>& etapes) const {
    std::u16string const& source = portions_[portion].source;
    bool const champ = EstChamp(portion);
    if (champ ? ajout.empty() && debut == 0 && fin == source.size()
              : debut == 0 && EstAuBordDe(GenrePortion::Repere, portion, false)) {
        return false; // an empty field shows nobody where it stands
    }
    // New letters are put in before the old ones leave, in between letters of the same portion, so
    // that they take its format and whatever spans it never becomes empty.
    std::size_t place = fin;
    std::u16string apres = source;
    if (!ajout.empty()) {
        if (!champ && fin == source.size() && debut > 0) {
            place = debut;
        } else if (!champ && fin == source.size()) {
            std::size_t const un = CoupePaire(source, 1) ? 2 : 1;
            if (un == source.size() && EstAuBordDe(GenrePortion::Limite, portion, true)) {
                return false;
            }
            place = un;
        }
        etapes.push_back({portion, place, place, ajout, source});
        apres.insert(place, ajout);
    }
    std::size_t const n = ajout.size();
    if (place < fin) {
        etapes.push_back({portion, place + n, fin + n, {}, apres});
    }
    if (debut < place) {
        etapes.push_back({portion, debut, place, {}, apres});
    }
    return true;
}

bool PlanDePortions::Prolonge(std::size_t decalage, bool versLaSuite, std::size_t limite,
                              std::u16string_view ajout, std::vector<EtapeEdition>& etapes) const {
    auto const place = DonnePlace(decalage, versLaSuite);
    if (!place || !EstFaiteDeLettres(portions_[place->portion].genre)) {
        return false;
    }
    std::size_t const portion = place->portion;
    std::u16string const& source = portions_[portion].source;
    if (EstChamp(portion)) {
        etapes.push_back({portion, place->unite, place->unite, std::u16string(ajout), source});
        return true;
    }
    bool const auBord = place->unite == (versLaSuite ? 0 : source.size());
    // At a paragraph's start nothing stands before that they could go with.
    bool const utile = versLaSuite ? portion > 0 : EstAuBordDe(GenrePortion::Limite, portion, true);
    if (!auBord || !utile || source.empty()) {
        return false;
    }
    std::size_t voisine = versLaSuite ? 1 : source.size() - 1;
    while (voisine > 0 && voisine < source.size() && CoupeCaractere(source, voisine)) {
        voisine += versLaSuite ? 1 : -1;
    }
    // Before its border's last letter nothing is left of the portion to put letters behind.
    if (voisine == 0) {
        return false;
    }
    std::size_t const atteint = DonneDecalage({portion, voisine});
    if (versLaSuite ? atteint > limite : atteint < limite) {
        return false; // what a reader sees as one character goes on outside of the range
    }
    std::u16string lettres(ajout);
    if (versLaSuite) {
        return EcrisSource(portion, 0, voisine, lettres + source.substr(0, voisine), etapes);
    }
    return EcrisSource(portion, voisine, source.size(), source.substr(voisine) + lettres, etapes);
}

std::optional<std::vector<EtapeEdition>> PlanDePortions::Prepare(std::size_t debut, std::size_t fin,
                                                                 std::u16string_view texte) const {
    std::u16string_view const ancien = std::u16string_view(texte_).substr(debut, fin - debut);
    EditionMinimale const edition = EditionMinimale::Entre(ancien, texte);
    std::vector<EtapeEdition> etapes;
    if (edition.EstVide()) {
        return etapes;
    }
    if (fige_ || !EstTapable(edition.ajout)) {
        return std::nullopt;
    }
    std::size_t const a = debut + edition.debut;
    if (edition.retire == 0) {
        // At an end of the range the letters belong to its words, and to what spans them: they go
        // in with the letter beside them where they would fall outside by themselves.
        bool const auDebut = a == debut;
        if (debut < fin && (auDebut || a == fin) &&
            Prolonge(a, auDebut, auDebut ? fin : debut, edition.ajout, etapes)) {
            return etapes;
        }
        auto const point = PointInsertion(a);
        if (!point || !Ecris(*point, edition.ajout, etapes)) {
            return std::nullopt;
        }
        return etapes;
    }
    // What is put in where a portion starts goes with the letter before it, as when typing: that
    // one takes part in the sharing out.
    std::size_t avant = 0;
    while (avant < edition.debut && (avant == 0 || CoupeCaractere(texte_, a - avant))) {
        ++avant;
    }
    auto morceaux = Decoupe(a - avant, a + edition.retire);
    auto const seuls = avant > 0 ? Decoupe(a, a + edition.retire) : morceaux;
    if (!morceaux || !seuls || morceaux->size() == seuls->size()) {
        avant = 0;
        morceaux = seuls;
    }
    if (!morceaux || morceaux->empty()) {
        return std::nullopt;
    }
    std::vector<std::size_t> tailles;
    tailles.reserve(morceaux->size());
    for (Morceau const& morceau : *morceaux) {
        tailles.push_back(morceau.fin - morceau.debut);
    }
    auto const parts =
        RepartisTexte(ancien.substr(edition.debut - avant, edition.retire + avant), tailles,
                      texte.substr(edition.debut - avant, edition.ajout.size() + avant));
    if (VideUneEtendue(*morceaux, parts)) {
        return std::nullopt;
    }
    // From the last to the first: what stands before an edit does not move.
    for (std::size_t i = morceaux->size(); i-- > 0;) {
        if (!Ecris((*morceaux)[i], parts[i], etapes)) {
            return std::nullopt;
        }
    }
    return etapes;
}

} // namespace compagnon
