// SPDX-License-Identifier: MPL-2.0
#include "Suivis.h"
#include "TirageDeTextes.h"

#include <gtest/gtest.h>

#include <optional>

using compagnon::Intervalle;
using compagnon::Localisation;
using compagnon::TextePartage;
using compagnon::TexteSuivi;

namespace {

std::int32_t Entier(std::size_t position) {
    return static_cast<std::int32_t>(position);
}

struct Edition {
    std::size_t debut;
    std::size_t fin;
    std::u16string ajout;

    std::u16string Applique(std::u16string texte) const {
        return texte.replace(debut, fin - debut, ajout);
    }
};

Edition EditionAuHasard(Hasard& hasard, std::u16string const& texte) {
    std::size_t const debut = hasard.Jusqua(texte.size());
    return {debut, debut + hasard.Jusqua(texte.size() - debut), hasard.Lettres(3)};
}

// Where a range goes under the edit that keeps `debut` units in front and `fin` units behind.
std::optional<Intervalle> Image(Intervalle plage, std::size_t debut, std::size_t fin,
                                std::size_t avant, std::size_t apres) {
    std::size_t const strict = plage.EstVide() ? 1 : 0;
    if (plage.DonneFin() + strict <= debut) {
        return plage;
    }
    if (plage.DonneDebut() >= avant - fin + strict) {
        std::int32_t const decalage = Entier(apres) - Entier(avant);
        return Intervalle{plage.debut + decalage, plage.fin + decalage};
    }
    return std::nullopt;
}

// The model, by brute force: every edit that explains the difference and cannot be made smaller
// must send the range to the same place.
std::optional<Intervalle> ImageCertaine(Intervalle plage, std::u16string const& avant,
                                        std::u16string const& apres) {
    if (avant == apres) {
        return plage;
    }
    auto const explique = [&](std::size_t debut, std::size_t fin) {
        return debut + fin <= std::min(avant.size(), apres.size()) &&
               avant.compare(0, debut, apres, 0, debut) == 0 &&
               avant.compare(avant.size() - fin, fin, apres, apres.size() - fin, fin) == 0;
    };
    std::optional<Intervalle> commune;
    bool premiere = true;
    for (std::size_t debut = 0; debut <= avant.size(); ++debut) {
        for (std::size_t fin = 0; debut + fin <= avant.size(); ++fin) {
            if (!explique(debut, fin) || explique(debut + 1, fin) || explique(debut, fin + 1)) {
                continue;
            }
            auto const image = Image(plage, debut, fin, avant.size(), apres.size());
            if (!image || (!premiere && *image != *commune)) {
                return std::nullopt;
            }
            commune = image;
            premiere = false;
        }
    }
    return commune;
}

} // namespace

TEST(FollowedTextAtRandom, FindsExactlyTheRangesThatEveryExplanationPutsInOnePlace) {
    Hasard hasard(1);
    for (int tour = 0; tour < 20000; ++tour) {
        std::u16string const avant = hasard.Lettres(7);
        std::u16string const apres = hasard.Lettres(7);
        TexteSuivi const suivi = Suivi(avant);
        for (std::size_t debut = 0; debut <= avant.size(); ++debut) {
            for (std::size_t fin = debut; fin <= avant.size(); ++fin) {
                Intervalle const plage{Entier(debut), Entier(fin)};
                Localisation const trouvee = suivi.Localise(plage, apres);
                std::optional<Intervalle> const attendue = ImageCertaine(plage, avant, apres);
                ASSERT_EQ(static_cast<bool>(trouvee), attendue.has_value());
                if (attendue) {
                    ASSERT_EQ(trouvee.plage, *attendue);
                }
            }
        }
    }
}

TEST(FollowedTextAtRandom, NeverPutsARangeElsewhereThanTheRealEditDid) {
    Hasard hasard(2);
    int trouvees = 0;
    for (int tour = 0; tour < 100000; ++tour) {
        std::u16string const avant = hasard.Lettres(12);
        Edition const edition = EditionAuHasard(hasard, avant);
        std::u16string const apres = edition.Applique(avant);
        std::size_t const debut = hasard.Jusqua(avant.size());
        Intervalle const plage{Entier(debut), Entier(debut + hasard.Jusqua(avant.size() - debut))};
        Localisation const trouvee = Suivi(avant).Localise(plage, apres);
        if (!trouvee) {
            continue;
        }
        ++trouvees;
        ASSERT_EQ(avant.substr(plage.DonneDebut(), plage.DonneLongueur()),
                  apres.substr(trouvee.plage.DonneDebut(), trouvee.plage.DonneLongueur()));
        auto const vraie =
            Image(plage, edition.debut, avant.size() - edition.fin, avant.size(), apres.size());
        if (vraie && avant != apres) {
            ASSERT_EQ(trouvee.plage, *vraie);
        }
    }
    EXPECT_GT(trouvees, 10000); // it does find ranges, it does not just refuse
}

TEST(FollowedTextAtRandom, CorrectionsAmongForeignEditsOnlyEverChangeTheirOwnLetters) {
    Hasard hasard(3);
    int faites = 0;
    for (int tour = 0; tour < 20000; ++tour) {
        TextePartage document = Partage(hasard.Lettres(14));
        TexteSuivi suivi;
        suivi.Donne(document);
        for (int pas = 0; pas < 6; ++pas) {
            if (hasard.Jusqua(2) == 0) {
                document = Partage(EditionAuHasard(hasard, *document).Applique(*document));
                continue;
            }
            std::u16string const croyance(suivi.DonneCroyance());
            std::size_t const debut = hasard.Jusqua(croyance.size());
            Intervalle const plage{Entier(debut),
                                   Entier(debut + hasard.Jusqua(croyance.size() - debut))};
            std::u16string const remplacement = hasard.Lettres(3);
            std::u16string const avant = *document;
            Localisation const faite = Corrige(suivi, plage, remplacement, document);
            if (!faite) {
                ASSERT_EQ(*document, avant);
                continue;
            }
            ++faites;
            ASSERT_EQ(croyance.substr(plage.DonneDebut(), plage.DonneLongueur()),
                      avant.substr(faite.plage.DonneDebut(), faite.plage.DonneLongueur()));
            std::u16string attendu = avant;
            attendu.replace(faite.plage.DonneDebut(), faite.plage.DonneLongueur(), remplacement);
            ASSERT_EQ(*document, attendu);
            std::u16string cru = croyance;
            cru.replace(plage.DonneDebut(), plage.DonneLongueur(), remplacement);
            ASSERT_EQ(suivi.DonneCroyance(), cru);
        }
    }
    EXPECT_GT(faites, 5000);
}

TEST(FollowedTextAtRandom, NoBoundEverPartsASurrogatePairOfEitherText) {
    Hasard hasard(4);
    for (int tour = 0; tour < 100000; ++tour) {
        std::u16string const avant = hasard.Caracteres(5);
        std::u16string const apres = hasard.Caracteres(5);
        std::size_t const debut = hasard.Jusqua(avant.size());
        Intervalle const plage{Entier(debut), Entier(debut + hasard.Jusqua(avant.size() - debut))};
        Localisation const trouvee = Suivi(avant).Localise(plage, apres);
        if (trouvee) {
            for (std::size_t const borne : {trouvee.plage.DonneDebut(), trouvee.plage.DonneFin()}) {
                ASSERT_FALSE(borne > 0 && borne < apres.size() && apres[borne] >= 0xDC00 &&
                             apres[borne] <= 0xDFFF && apres[borne - 1] >= 0xD800 &&
                             apres[borne - 1] <= 0xDBFF);
            }
        }
    }
}
