// SPDX-License-Identifier: MPL-2.0
#include "Explication.h"

#include <algorithm>

namespace hote {

namespace {

using Places = std::vector<int>; ///< places in the real text, sorted

/// The ways through the real text: before each correction, the places that it may stand at.
class Chemins {
  public:
    Chemins(QString const& cru, std::vector<Remplacement> const& remplacements, QString const& reel)
        : cru_(cru)
        , remplacements_(remplacements)
        , reel_(reel) {}

    std::optional<std::vector<bool>> Cherche() {
        auto const nombre = remplacements_.size();
        std::vector<Places> places(nombre + 1);
        if (auto const depart = SuisTexte(0, 0)) {
            places[0].push_back(*depart);
        }
        for (std::size_t i = 0; i < nombre; ++i) {
            for (int place : places[i]) {
                for (bool fait : {false, true}) {
                    if (auto const suite = Suis(i, place, fait)) {
                        places[i + 1].push_back(*suite);
                    }
                }
            }
            Range(places[i + 1]);
        }
        // Only ways that use the whole text up count; from the end, those that lead there.
        bool const arrive =
            std::binary_search(places[nombre].begin(), places[nombre].end(), reel_.size());
        if (!arrive) {
            return std::nullopt;
        }
        std::vector<bool> faits(nombre);
        Places bonnes{reel_.size()};
        for (std::size_t i = nombre; i-- > 0;) {
            Places precedentes;
            bool peutEtreNon = false;
            for (int place : places[i]) {
                for (bool fait : {false, true}) {
                    auto const suite = Suis(i, place, fait);
                    if (!suite || !std::binary_search(bonnes.begin(), bonnes.end(), *suite)) {
                        continue;
                    }
                    precedentes.push_back(place);
                    peutEtreNon = peutEtreNon || !fait;
                }
            }
            Range(precedentes);
            faits[i] = !peutEtreNon;
            bonnes = std::move(precedentes);
        }
        return faits;
    }

  private:
    static void Range(Places& places) {
        std::sort(places.begin(), places.end());
        places.erase(std::unique(places.begin(), places.end()), places.end());
    }

    /// Past correction `rang` at `place`, made or not, and the text behind it.
    std::optional<int> Suis(std::size_t rang, int place, bool fait) const {
        Remplacement const& r = remplacements_[rang];
        QStringRef const texte =
            fait ? cru_.midRef(r.debut, r.fin - r.debut) : QStringRef(&r.avant);
        if (reel_.midRef(place, texte.size()) != texte) {
            return std::nullopt;
        }
        return SuisTexte(rang + 1, place + texte.size());
    }

    /// Past the text that stands before correction `rang`.
    std::optional<int> SuisTexte(std::size_t rang, int place) const {
        int const debut = rang == 0 ? 0 : remplacements_[rang - 1].fin;
        int const fin = rang < remplacements_.size() ? remplacements_[rang].debut : cru_.size();
        if (reel_.midRef(place, fin - debut) != cru_.midRef(debut, fin - debut)) {
            return std::nullopt;
        }
        return place + fin - debut;
    }

    QString const& cru_;
    std::vector<Remplacement> const& remplacements_;
    QString const& reel_;
};

} // namespace

std::optional<std::vector<bool>>
Explique(QString const& cru, std::vector<Remplacement> const& remplacements, QString const& reel) {
    return Chemins(cru, remplacements, reel).Cherche();
}

} // namespace hote
