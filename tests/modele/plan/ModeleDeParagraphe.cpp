// SPDX-License-Identifier: MPL-2.0
#include "ModeleDeParagraphe.h"

#include "modele/Frontieres.h"

using compagnon::GenrePortion;

namespace {

std::u16string LettresAuHasard(std::mt19937& hasard) {
    static std::u16string const kMorceaux[] = {u"a",
                                               u"b",
                                               u"c",
                                               u" ",
                                               u"\u00e9",
                                               u"e\u0301",
                                               u"\U0001F600",
                                               u"\u00AD",
                                               u"\n",
                                               u"\u00A0",
                                               u"\U0001F469\u200D\U0001F680"};
    std::u16string texte;
    for (auto i = hasard() % 6; i > 0; --i) {
        texte += kMorceaux[hasard() % 11];
    }
    return texte;
}

std::u16string Chaine(std::vector<ModeleDeParagraphe::Lettre> const& lettres) {
    std::u16string texte;
    for (ModeleDeParagraphe::Lettre const& lettre : lettres) {
        texte += lettre.unite;
    }
    return texte;
}

} // namespace

ModeleDeParagraphe ModeleDeParagraphe::AuHasard(std::mt19937& hasard) {
    ModeleDeParagraphe modele;
    std::uint32_t identite = 0;
    for (auto i = hasard() % 8; i > 0; --i) {
        // Letters as often as everything else together.
        auto const genre =
            hasard() % 2 == 0 ? GenrePortion::Texte : static_cast<GenrePortion>(hasard() % 9);
        Portion portion{genre, {}, static_cast<std::uint16_t>(hasard() % 3)};
        if (genre == GenrePortion::Texte || genre == GenrePortion::Champ ||
            genre == GenrePortion::Fixe || genre == GenrePortion::Exclue) {
            for (char16_t const unite : LettresAuHasard(hasard)) {
                portion.lettres.push_back({unite, ++identite});
            }
        }
        modele.portions.push_back(std::move(portion));
    }
    return modele;
}

compagnon::PlanDePortions ModeleDeParagraphe::Plan() const {
    compagnon::PlanDePortions plan;
    for (Portion const& portion : portions) {
        // A recorded deletion parts the letters around it, as an office shows it.
        std::size_t i = 0;
        do {
            std::size_t fin = i;
            while (fin < portion.lettres.size() &&
                   portion.lettres[fin].supprimee == portion.lettres[i].supprimee) {
                ++fin;
            }
            std::vector<Lettre> const part(portion.lettres.begin() + static_cast<long>(i),
                                           portion.lettres.begin() + static_cast<long>(fin));
            bool const supprimee = !part.empty() && part.front().supprimee;
            plan.Ajoute(supprimee ? GenrePortion::Exclue : portion.genre, Chaine(part),
                        portion.style);
            i = fin;
        } while (i < portion.lettres.size());
    }
    return plan;
}

bool ModeleDeParagraphe::EstPrecedeeDUnSignet(std::size_t portion) const {
    while (portion > 0) {
        Portion const& avant = portions[--portion];
        if (avant.genre == GenrePortion::Repere) {
            return true;
        }
        if (avant.genre != GenrePortion::Limite && avant.genre != GenrePortion::Attache) {
            return false;
        }
    }
    return false;
}

std::string ModeleDeParagraphe::Execute(compagnon::EtapeEdition const& etape, bool suivi) {
    if (etape.portion >= portions.size()) {
        return "no such portion";
    }
    Portion& portion = portions[etape.portion];
    std::u16string const lettres = Chaine(portion.lettres);
    bool const champ = portion.genre == GenrePortion::Champ;
    if (portion.genre != GenrePortion::Texte && !champ) {
        return "touches what is not text";
    }
    if (etape.debut > etape.fin || etape.fin > lettres.size()) {
        return "out of bounds";
    }
    if (compagnon::CoupePaire(lettres, etape.debut) || compagnon::CoupePaire(lettres, etape.fin)) {
        return "parts a pair";
    }
    // Code points are counted in what the step says that it walks over.
    if (etape.source.compare(0, etape.fin, lettres, 0, etape.fin) != 0) {
        return "walks over other letters than it says";
    }
    auto const debut = portion.lettres.begin() + static_cast<long>(etape.debut);
    if (etape.EstInsertion()) {
        std::vector<Lettre> nouvelles;
        for (char16_t const unite : etape.ajout) {
            nouvelles.push_back({unite, 0});
        }
        portion.lettres.insert(debut, nouvelles.begin(), nouvelles.end());
        return {};
    }
    if (!champ && etape.debut == 0 && EstPrecedeeDUnSignet(etape.portion)) {
        return "takes a bookmark along";
    }
    auto const fin = portion.lettres.begin() + static_cast<long>(etape.fin);
    if (suivi && !champ) { // a field's words are given anew, not deleted
        for (auto it = debut; it != fin; ++it) {
            it->supprimee = true;
        }
        return {};
    }
    portion.lettres.erase(debut, fin);
    if (champ && portion.lettres.empty()) {
        return "empties a field";
    }
    bool const entreLimites = etape.portion > 0 && etape.portion + 1 < portions.size() &&
                              portions[etape.portion - 1].genre == GenrePortion::Limite &&
                              portions[etape.portion + 1].genre == GenrePortion::Limite;
    if (portion.lettres.empty() && entreLimites) {
        return "empties what a bookmark spans";
    }
    return {};
}
