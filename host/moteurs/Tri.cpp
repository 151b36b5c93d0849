// SPDX-License-Identifier: MPL-2.0
#include "Tri.h"

#include "FaisParagraphe.h"

#include <algorithm>

namespace hote {

namespace {

bool EstRemplissage(QChar unite) {
    return unite.unicode() == 0x07 || unite.unicode() == 0x11;
}

/// A boundary that would part the two halves of one character.
bool CoupeUnePaire(QString const& texte, int position) {
    return position > 0 && position < texte.size() && texte.at(position).isLowSurrogate() &&
           texte.at(position - 1).isHighSurrogate();
}

bool SeTouchent(Remarque const& une, Remarque const& autre) {
    return une.debut < autre.fin && autre.debut < une.fin;
}

} // namespace

bool Tri::EstBonne(Remarque& remarque) const {
    QString const& texte = paragraphe_.texte;
    if (remarque.debut < 0 || remarque.debut >= remarque.fin || remarque.fin > texte.size() ||
        CoupeUnePaire(texte, remarque.debut) || CoupeUnePaire(texte, remarque.fin)) {
        return false;
    }
    if (std::any_of(texte.cbegin() + remarque.debut, texte.cbegin() + remarque.fin,
                    EstRemplissage)) {
        return false;
    }
    remarque.suggestions.removeAll(texte.mid(remarque.debut, remarque.fin - remarque.debut));
    remarque.suggestions.removeDuplicates();
    return EstDansLangues(paragraphe_, remarque.debut, remarque.fin, juge_) &&
           !(refuse_ && refuse_(remarque, paragraphe_));
}

std::vector<Remarque> Tri::Trie(std::vector<Remarque> remarques,
                                std::vector<Remarque> const& montrees) const {
    std::stable_sort(remarques.begin(), remarques.end(), [](auto const& a, auto const& b) {
        return a.surete != b.surete ? a.surete > b.surete : a.fin - a.debut < b.fin - b.debut;
    });
    std::vector<Remarque> bonnes;
    for (Remarque& remarque : remarques) {
        auto const touche = [&](Remarque const& autre) { return SeTouchent(remarque, autre); };
        if (EstBonne(remarque) && std::none_of(montrees.begin(), montrees.end(), touche) &&
            std::none_of(bonnes.begin(), bonnes.end(), touche)) {
            bonnes.push_back(std::move(remarque));
        }
    }
    std::sort(bonnes.begin(), bonnes.end(),
              [](auto const& a, auto const& b) { return a.debut < b.debut; });
    return bonnes;
}

} // namespace hote
