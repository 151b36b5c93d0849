// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <algorithm>
#include <cstdint>
#include <utility>
#include <vector>

namespace sdd {

/// One stretch of text with one attribute. Positions in code units, `fin` exclusive.
struct PlageAttribut {
    int debut;
    int fin;
    std::uint16_t attribut;

    int Longueur() const noexcept { return fin - debut; }
    friend bool operator==(PlageAttribut const& a, PlageAttribut const& b) noexcept {
        return a.debut == b.debut && a.fin == b.fin && a.attribut == b.attribut;
    }
};

/// A string with attributes over stretches of it (style bits, for a connector).
///
/// Invariant: the runs are sorted, disjoint, not empty, inside the text, and none has attribute 0
/// (text without a run has attribute 0). Runs set one after the other are not merged, even where
/// they touch and are equal: what was set can be read back as it was set.
///
/// `C` is a string with `Longueur()`, `Remplace` and `MetsUnite` (`ChaineN`). Setting
/// runs in document order costs amortised constant time each; elsewhere a binary search and a move
/// of the runs behind. Copying copies the runs and shares the text. Distinct objects may be used on
/// distinct threads; one object on one thread at a time. Throws only std::bad_alloc.
template <class C>
class ChaineTemplateAvecAttributs {
  public:
    using Plages = std::vector<PlageAttribut>;

    ChaineTemplateAvecAttributs() = default;
    /// The text, with no attribute anywhere.
    explicit ChaineTemplateAvecAttributs(C texte)
        : texte_(std::move(texte)) {}

    C const& DonneTexte() const noexcept { return texte_; }
    int Longueur() const noexcept { return texte_.Longueur(); }

    /// Replaces the whole text and drops every attribute.
    void MetsTexte(C texte) {
        texte_ = std::move(texte);
        plages_.clear();
    }

    /// The runs, in text order; the reference lives until the object changes.
    Plages const& DonnePlages() const noexcept { return plages_; }

    /// Gives `longueur` units from `debut` the attribute, in place of what they had; 0 clears.
    /// What lies outside the text is left out; a length below 1 sets nothing.
    void MetsAttribut(int debut, int longueur, std::uint16_t attribut) {
        if (longueur < 1) {
            return;
        }
        auto const bornee = std::min<std::int64_t>(std::int64_t{debut} + longueur, Longueur());
        auto const fin = static_cast<int>(bornee);
        debut = std::max(debut, 0);
        if (debut >= fin) {
            return;
        }
        if (plages_.empty() || plages_.back().fin <= debut) {
            if (attribut != 0) {
                plages_.push_back({debut, fin, attribut});
            }
            return;
        }
        RemplacePlages(debut, fin, attribut);
    }

    /// Replaces `longueur` units from `debut` by `texte` with its own attributes; runs behind move
    /// with their text, a run cut by the replacement keeps its outer parts. A start outside the
    /// text or a negative length changes nothing and gives false; a length past the end is cut.
    bool Remplace(int debut, int longueur, ChaineTemplateAvecAttributs const& texte) {
        if (debut < 0 || debut > Longueur() || longueur < 0) {
            return false;
        }
        longueur = std::min(longueur, Longueur() - debut);
        if (longueur == 0 && texte.Longueur() == 0) {
            return true; // nothing is cut
        }
        int const fin = debut + longueur;
        int const decalage = texte.Longueur() - longueur;
        Plages nouvelles;
        nouvelles.reserve(plages_.size() + texte.plages_.size() + 1);
        for (auto const& p : plages_) {
            if (p.debut < debut) {
                nouvelles.push_back({p.debut, std::min(p.fin, debut), p.attribut});
            }
        }
        for (auto const& p : texte.plages_) {
            nouvelles.push_back({p.debut + debut, p.fin + debut, p.attribut});
        }
        for (auto const& p : plages_) {
            if (p.fin > fin) {
                nouvelles.push_back(
                    {std::max(p.debut, fin) + decalage, p.fin + decalage, p.attribut});
            }
        }
        texte_.Remplace(debut, longueur, texte.texte_);
        plages_ = std::move(nouvelles);
        return true;
    }

    /// Changes one unit and leaves the attributes as they are; outside the text nothing changes.
    void MetsUnite(int position, char16_t unite) { texte_.MetsUnite(position, unite); }

    /// Keeps the first `longueur` units and what lies of the runs in them.
    void CoupeA(int longueur) {
        if (longueur < Longueur()) {
            Remplace(std::max(longueur, 0), Longueur(), ChaineTemplateAvecAttributs());
        }
    }

    friend bool operator==(ChaineTemplateAvecAttributs const& a,
                           ChaineTemplateAvecAttributs const& b) noexcept {
        return a.texte_ == b.texte_ && a.plages_ == b.plages_;
    }

  private:
    typename Plages::const_iterator PremiereFinissantApres(int position) const noexcept {
        return std::upper_bound(plages_.begin(), plages_.end(), position,
                                [](int p, PlageAttribut const& plage) { return p < plage.fin; });
    }

    /// The general case of MetsAttribut: the runs that meet [debut, fin) give way to one, and the
    /// first and last of them keep what sticks out.
    void RemplacePlages(int debut, int fin, std::uint16_t attribut) {
        auto const premiere = PremiereFinissantApres(debut);
        auto derniere = premiere;
        PlageAttribut pieces[3];
        int nombre = 0;
        if (premiere != plages_.end() && premiere->debut < debut) {
            pieces[nombre++] = {premiere->debut, debut, premiere->attribut};
        }
        if (attribut != 0) {
            pieces[nombre++] = {debut, fin, attribut};
        }
        while (derniere != plages_.end() && derniere->debut < fin) {
            if (derniere->fin > fin) {
                pieces[nombre++] = {fin, derniere->fin, derniere->attribut};
            }
            ++derniere;
        }
        auto const place = plages_.erase(premiere, derniere);
        plages_.insert(place, pieces, pieces + nombre);
    }

    C texte_;
    Plages plages_;
};

} // namespace sdd
