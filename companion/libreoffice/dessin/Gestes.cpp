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

/// Can the letters of whole portions that go come back as they were? They take what those before
/// them have of their own, and what goes beside them had; at the paragraph's start, what those
/// behind have. Nothing takes that from them again.
bool PeuventSeRemettre(ParagrapheLu const& lu, std::vector<std::u16string> const& sources) {
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

/// What makes the letters at `position` read `avant` again instead of `apres`, the letters of one
/// portion. They go in behind one of its own, as there they take its format.
void Remets(std::size_t position, std::u16string const& avant, std::u16string const& apres,
            css::uno::Reference<css::text::XTextRange> const& etendue, std::vector<Geste>& retour) {
    auto const edition = compagnon::EditionMinimale::Entre(apres, avant);
    std::size_t const ici = position + edition.debut;
    std::u16string ajout(edition.ajout);
    if (ajout.empty()) {
        retour.push_back({ici, edition.retire, {}});
    } else if (edition.retire > 0) {
        retour.push_back({ici + edition.retire, 0, ajout});
        retour.push_back({ici, edition.retire, {}});
    } else if (edition.debut > 0) {
        retour.push_back({ici, 0, ajout});
    } else if (!apres.empty()) {
        std::size_t const une = compagnon::CoupePaire(apres, 1) ? 2 : 1;
        retour.push_back({ici + une, 0, ajout + apres.substr(0, une)});
        retour.push_back({ici, une, {}});
    } else {
        retour.push_back({ici, 0, ajout, FormatPropre(etendue)});
    }
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

Geste GesteDe(PlanDePortions const& plan, EtapeEdition const& etape) {
    Geste geste;
    for (std::size_t i = 0; i < etape.portion; ++i) {
        Portion const& portion = plan.DonnePortions()[i];
        geste.position += Etendue(portion, portion.source.size());
    }
    geste.champ = RangDuChamp(plan, etape.portion);
    if (geste.champ) {
        geste.ajout = etape.DonneApres();
    } else {
        geste.position += etape.debut;
        geste.retire = etape.fin - etape.debut;
        geste.ajout = etape.ajout;
    }
    return geste;
}

std::optional<Gestes> GestesPour(ParagrapheLu const& lu, std::vector<EtapeEdition> const& etapes) {
    std::vector<Portion> const& portions = lu.plan.DonnePortions();
    std::vector<std::u16string> sources; // as the steps leave them
    for (Portion const& portion : portions) {
        sources.push_back(portion.genre == GenrePortion::Substitut
                              ? std::u16string(1, compagnon::kRemplissage)
                              : portion.source);
    }
    Gestes gestes;
    gestes.avant = LettresDe(lu.plan);
    for (EtapeEdition const& etape : etapes) {
        sources[etape.portion].replace(etape.debut, etape.fin - etape.debut, etape.ajout);
        gestes.aller.push_back(GesteDe(lu.plan, etape));
    }
    if (!PeuventSeRemettre(lu, sources)) {
        return std::nullopt;
    }
    std::vector<Geste> portion; // from the last portion to the first, as the steps go
    std::size_t position = 0;
    for (std::size_t i = 0; i < portions.size(); ++i) {
        bool const lettres = portions[i].genre != GenrePortion::Substitut;
        portion.clear();
        if (lettres && sources[i] != portions[i].source) {
            if (auto const champ = RangDuChamp(lu.plan, i)) {
                portion.push_back({position, 0, portions[i].source, {}, champ});
            } else {
                Remets(position, portions[i].source, sources[i], lu.etendues[i], portion);
            }
        }
        gestes.retour.insert(gestes.retour.begin(), portion.begin(), portion.end());
        gestes.apres += sources[i];
        position += Etendue(portions[i], sources[i].size());
    }
    return gestes;
}

} // namespace extension
