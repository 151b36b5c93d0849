// SPDX-License-Identifier: MPL-2.0
#include "Gestes.h"

#include "modele/EditionMinimale.h"
#include "modele/Frontieres.h"
#include "modele/Utf.h"

#include <algorithm>
#include <cstddef>
#include <utility>

using compagnon::EtapeEdition;
using compagnon::GenrePortion;
using compagnon::PlanDePortions;
using compagnon::Portion;

namespace extension {

namespace {

bool EstUnChamp(Portion const& portion) {
    return portion.genre == GenrePortion::Champ;
}

/// How many positions so many of the letters of a portion take.
std::size_t Etendue(Portion const& portion, std::size_t lettres) {
    return portion.genre == GenrePortion::Substitut || EstUnChamp(portion) ? 1 : lettres;
}

/// Which field it is among those whose words are read; nothing for letters.
std::optional<std::size_t> RangDuChamp(PlanDePortions const& plan, std::size_t portion) {
    auto const debut = plan.DonnePortions().begin();
    auto const ici = debut + static_cast<std::ptrdiff_t>(portion);
    return EstUnChamp(*ici)
               ? std::make_optional(static_cast<std::size_t>(std::count_if(debut, ici, EstUnChamp)))
               : std::nullopt;
}

/// A portion's letters, `de` before and `vers` after.
struct Change {
    std::u16string const& de;
    std::u16string const& vers;
};

/// What gives the letters of one portion at `position` others. New ones go in behind one of its
/// own, as there they take its format; and in the place of the old ones, as a text that is longer
/// for a moment makes a table's row higher for good. `etendue`: of letters in the format to give
/// where there is none of its own; may be empty.
void Remplace(std::size_t position, Change const& change,
              css::uno::Reference<css::text::XTextRange> const& etendue,
              std::vector<Geste>& gestes) {
    auto const edition = compagnon::EditionMinimale::Entre(change.de, change.vers);
    std::size_t const ici = position + edition.debut;
    std::u16string ajout(edition.ajout);
    if (ajout.empty() || edition.debut > 0) {
        gestes.push_back({ici, edition.retire, ajout});
        return;
    }
    if (change.de.empty()) {
        gestes.push_back({ici, 0, ajout, etendue.is() ? FormatPropre(etendue) : FormatPropre()});
        return;
    }
    std::size_t const une = compagnon::CoupePaire(change.de, 1) ? 2 : 1;
    bool const reste = edition.retire == 0; // it comes again, behind the new ones
    gestes.push_back({ici + une, reste ? 0 : edition.retire - une,
                      reste ? ajout + change.de.substr(0, une) : ajout});
    gestes.push_back({ici, une, {}});
}

/// The letters of each portion after the steps.
std::vector<std::u16string> Sources(PlanDePortions const& plan,
                                    std::vector<EtapeEdition> const& etapes) {
    std::vector<std::u16string> sources;
    for (Portion const& portion : plan.DonnePortions()) {
        sources.push_back(portion.source);
    }
    for (EtapeEdition const& etape : etapes) {
        sources[etape.portion].replace(etape.debut, etape.fin - etape.debut, etape.ajout);
    }
    return sources;
}

} // namespace

std::u16string LettresDe(PlanDePortions const& plan) {
    std::u16string lettres;
    for (Portion const& portion : plan.DonnePortions()) {
        bool const remplie = portion.genre == GenrePortion::Substitut;
        lettres += remplie ? std::u16string(1, compagnon::kRemplissage) : portion.source;
    }
    return lettres;
}

Gestes GestesPour(ParagrapheLu const& lu, std::vector<EtapeEdition> const& etapes) {
    std::vector<Portion> const& portions = lu.plan.DonnePortions();
    std::vector<std::u16string> const sources = Sources(lu.plan, etapes);
    Gestes gestes;
    gestes.avant = LettresDe(lu.plan);
    // From the last portion to the first: what stands before a gesture does not move.
    auto const avance = [](std::vector<Geste>& vers, std::vector<Geste> const& portion) {
        vers.insert(vers.begin(), portion.begin(), portion.end());
    };
    std::size_t avant = 0;
    std::size_t apres = 0;
    for (std::size_t i = 0; i < portions.size(); ++i) {
        std::u16string const& source = portions[i].source;
        if (sources[i] != source) {
            std::vector<Geste> aller;
            std::vector<Geste> retour;
            if (auto const champ = RangDuChamp(lu.plan, i)) {
                aller.push_back({avant, 1, sources[i], {}, champ});
                retour.push_back({apres, 1, source, {}, champ});
            } else {
                Remplace(avant, {source, sources[i]}, {}, aller);
                Remplace(apres, {sources[i], source}, lu.etendues[i], retour);
            }
            avance(gestes.aller, aller);
            avance(gestes.retour, retour);
        }
        bool const remplie = portions[i].genre == GenrePortion::Substitut;
        gestes.apres += remplie ? std::u16string(1, compagnon::kRemplissage) : sources[i];
        avant += Etendue(portions[i], source.size());
        apres += Etendue(portions[i], sources[i].size());
    }
    return gestes;
}

bool PeuventRevenir(ParagrapheLu const& lu, std::vector<EtapeEdition> const& etapes) {
    // The letters of a whole portion take what those before them have of their own, and what goes
    // beside them had; at the paragraph's start, what those behind have. Nothing takes that from
    // them again.
    std::vector<std::u16string> const sources = Sources(lu.plan, etapes);
    auto const vide = [&](std::size_t i) {
        return sources[i].empty() && !lu.plan.DonnePortions()[i].source.empty();
    };
    auto const prend = [&](std::size_t i, std::size_t voisine) {
        return !FormatPropre(lu.etendues[i]).Couvre(FormatPropre(lu.etendues[voisine]));
    };
    for (std::size_t i = 0; i < sources.size(); ++i) {
        bool const deLaSuite = i + 1 < sources.size() && (i == 0 || vide(i + 1));
        if (vide(i) && ((i > 0 && prend(i, i - 1)) || (deLaSuite && prend(i, i + 1)))) {
            return false;
        }
    }
    return true;
}

} // namespace extension
