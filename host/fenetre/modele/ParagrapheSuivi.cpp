// SPDX-License-Identifier: MPL-2.0
#include "ParagrapheSuivi.h"

#include <algorithm>

namespace hote {

namespace {

bool EstLaMeme(Remarque const& a, Remarque const& b) {
    return a.debut == b.debut && a.fin == b.fin && a.moteur == b.moteur && a.regle == b.regle;
}

/// A correction made is no remark of an engine's any more: it stays until it is undone.
bool EstDUnMoteur(RemarqueSuivie const& suivie) {
    return suivie.etat != EtatRemarque::Corrigee;
}

} // namespace

RemarqueSuivie* ParagrapheSuivi::Trouve(quint64 id) {
    auto const place = std::find_if(remarques_.begin(), remarques_.end(),
                                    [id](RemarqueSuivie const& r) { return r.id == id; });
    return place == remarques_.end() ? nullptr : &*place;
}

void ParagrapheSuivi::Relis(ParagrapheDuDocument lu) {
    QString const& avant = lu_.texte;
    QString const& apres = lu.texte;
    auto const debut = std::mismatch(avant.begin(), avant.end(), apres.begin(), apres.end());
    auto const reste = std::min(avant.end() - debut.first, apres.end() - debut.second);
    auto const fin = std::mismatch(std::make_reverse_iterator(avant.end()),
                                   std::make_reverse_iterator(avant.end() - reste),
                                   std::make_reverse_iterator(apres.end()));
    int const premier = static_cast<int>(debut.first - avant.begin());
    int const dernier = static_cast<int>(fin.first.base() - avant.begin());
    if (premier != dernier || avant.size() != apres.size()) {
        Decale(premier, dernier, dernier - premier + apres.size() - avant.size(), 0);
    }
    lu_ = std::move(lu);
    RecommenceExamen();
}

void ParagrapheSuivi::Remplace(int debut, int fin, QString const& texte, quint64 sauf) {
    Decale(debut, fin, texte.size(), sauf);
    lu_.texte.replace(debut, fin - debut, texte);
    int const ecart = texte.size() - (fin - debut);
    for (EtendueDeLangue& etendue : lu_.langues) {
        // What replaces has the language of what stood at its start.
        etendue.debut += etendue.debut >= fin && etendue.debut > debut ? ecart : 0;
        etendue.fin += etendue.fin >= fin && etendue.fin > debut ? ecart : 0;
        etendue.debut = std::clamp(etendue.debut, 0, lu_.texte.size());
        etendue.fin = std::clamp(etendue.fin, etendue.debut, lu_.texte.size());
    }
    if (!lu_.langues.empty()) {
        lu_.langues.back().fin = lu_.texte.size();
    }
    RecommenceExamen();
}

void ParagrapheSuivi::Decale(int debut, int fin, int longueur, quint64 sauf) {
    int const ecart = longueur - (fin - debut);
    for (auto place = remarques_.begin(); place != remarques_.end();) {
        Remarque& remarque = place->remarque;
        if (place->id == sauf) {
            remarque.debut = debut;
            remarque.fin = debut + longueur;
        } else if (remarque.debut >= fin && remarque.debut > debut) {
            remarque.debut += ecart;
            remarque.fin += ecart;
        } else if (remarque.fin > debut) {
            place = remarques_.erase(place);
            continue;
        }
        ++place;
    }
}

void ParagrapheSuivi::Recois(QString const& moteur, std::vector<Remarque> const& remarques,
                             quint64& prochainId) {
    vu_ = true;
    moteursVus_.insert(moteur);
    std::vector<RemarqueSuivie> suivies;
    for (RemarqueSuivie& ancienne : remarques_) {
        bool const reste = !EstDUnMoteur(ancienne) || ancienne.remarque.moteur != moteur;
        auto const meme = [&](Remarque const& r) { return EstLaMeme(r, ancienne.remarque); };
        auto const retrouvee = std::find_if(remarques.begin(), remarques.end(), meme);
        if (reste || retrouvee != remarques.end()) {
            suivies.push_back(std::move(ancienne));
            if (!reste) {
                suivies.back().remarque = *retrouvee;
            }
        }
    }
    for (Remarque const& remarque : remarques) {
        bool const connue =
            std::any_of(suivies.begin(), suivies.end(), [&](RemarqueSuivie const& s) {
                return EstDUnMoteur(s) && EstLaMeme(remarque, s.remarque);
            });
        if (!connue) {
            suivies.push_back({prochainId++, remarque, EtatRemarque::AVoir, {}, {}});
        }
    }
    std::stable_sort(suivies.begin(), suivies.end(), [](auto const& a, auto const& b) {
        return a.remarque.debut < b.remarque.debut;
    });
    remarques_ = std::move(suivies);
}

void ParagrapheSuivi::FinisExamen() {
    auto const perimee = [this](RemarqueSuivie const& r) {
        return EstDUnMoteur(r) && !moteursVus_.contains(r.remarque.moteur);
    };
    remarques_.erase(std::remove_if(remarques_.begin(), remarques_.end(), perimee),
                     remarques_.end());
    vu_ = true;
    examine_ = true;
    jeton = 0;
}

void ParagrapheSuivi::RecommenceExamen() {
    moteursVus_.clear();
    vu_ = false;
    examine_ = false;
}

} // namespace hote
