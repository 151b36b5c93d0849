// SPDX-License-Identifier: MPL-2.0
// Random paragraphs of every kind of portion, random corrections, and a model that carries the
// steps out: not one wrong letter.
#include "ModeleDeParagraphe.h"

#include "modele/Frontieres.h"

#include <gtest/gtest.h>

#include <string>

namespace {

constexpr int kParagraphes = 100'000;

std::u16string Remplacement(std::mt19937& hasard, std::u16string const& ancien) {
    static std::u16string const kMots[] = {u"", u"x", u"yz", u"\U0001F601", u"e\u0300", u"abc"};
    std::u16string texte = ancien;
    for (auto i = hasard() % 3; i > 0; --i) {
        std::size_t const ou = hasard() % (texte.size() + 1);
        std::size_t const taille = hasard() % 3;
        if (compagnon::CoupePaire(texte, ou) ||
            compagnon::CoupePaire(texte, std::min(ou + taille, texte.size()))) {
            continue;
        }
        texte.replace(ou, taille, kMots[hasard() % 6]);
    }
    return texte;
}

/// The letters that stand outside the range, by identity, in document order.
std::vector<std::uint32_t> Dehors(ModeleDeParagraphe const& modele,
                                  compagnon::PlanDePortions const& plan, std::size_t debut,
                                  std::size_t fin) {
    std::vector<std::uint32_t> identites;
    for (std::size_t i = 0; i < modele.portions.size(); ++i) {
        auto const& lettres = modele.portions[i].lettres;
        for (std::size_t u = 0; u < lettres.size(); ++u) {
            std::size_t const decalage = plan.DonneDecalage({i, u});
            if (decalage < debut || decalage >= fin) {
                identites.push_back(lettres[u].identite);
            }
        }
    }
    return identites;
}

/// Those of them that are still there.
std::vector<std::uint32_t> Restantes(ModeleDeParagraphe const& modele,
                                     std::vector<std::uint32_t> const& identites) {
    std::vector<std::uint32_t> restantes;
    auto attendue = identites.begin();
    for (auto const& portion : modele.portions) {
        for (auto const& lettre : portion.lettres) {
            if (attendue != identites.end() && lettre.identite == *attendue && !lettre.supprimee) {
                restantes.push_back(lettre.identite);
                ++attendue;
            }
        }
    }
    return restantes;
}

void Essaie(std::mt19937& hasard, bool suivi, int& faites) {
    ModeleDeParagraphe modele = ModeleDeParagraphe::AuHasard(hasard);
    ModeleDeParagraphe const avant = modele;
    compagnon::PlanDePortions const plan = modele.Plan();
    std::u16string const& texte = plan.DonneTexte();
    for (std::size_t i = 0; i <= texte.size() && plan.DonnePlace(i, true); ++i) {
        ASSERT_EQ(plan.DonneDecalage(*plan.DonnePlace(i, true)), i);
        ASSERT_EQ(plan.DonneDecalage(*plan.DonnePlace(i, false)), i);
    }
    std::size_t const debut = hasard() % (texte.size() + 1);
    std::size_t const fin = debut + hasard() % (texte.size() - debut + 1);
    if (compagnon::CoupePaire(texte, debut) || compagnon::CoupePaire(texte, fin)) {
        return;
    }
    std::u16string const nouveau = Remplacement(hasard, texte.substr(debut, fin - debut));
    auto const etapes = plan.Prepare(debut, fin, nouveau);
    if (!etapes) {
        return;
    }
    ++faites;
    for (auto const& etape : *etapes) {
        ASSERT_EQ(modele.Execute(etape, suivi), "");
    }
    std::u16string const voulu = texte.substr(0, debut) + nouveau + texte.substr(fin);
    ASSERT_EQ(modele.Plan().DonneTexte(), voulu);
    auto const dehors = Dehors(avant, plan, debut, fin);
    ASSERT_EQ(Restantes(modele, dehors), dehors);
    ASSERT_EQ(avant.portions.size(), modele.portions.size());
    for (std::size_t i = 0; i < avant.portions.size(); ++i) {
        ASSERT_EQ(avant.portions[i].genre, modele.portions[i].genre);
        if (avant.portions[i].genre != compagnon::GenrePortion::Texte &&
            avant.portions[i].genre != compagnon::GenrePortion::Champ) {
            ASSERT_EQ(avant.portions[i].lettres.size(), modele.portions[i].lettres.size());
        }
    }
}

} // namespace

TEST(PortionPlan, RandomCorrectionsOfRandomParagraphsGiveExactlyTheTextAskedFor) {
    std::mt19937 hasard(20240517);
    int faites = 0;
    for (int i = 0; i < kParagraphes; ++i) {
        ASSERT_NO_FATAL_FAILURE(Essaie(hasard, false, faites)) << "paragraph " << i;
    }
    EXPECT_GT(faites, kParagraphes / 2);
}

TEST(PortionPlan, RandomCorrectionsWithRecordedDeletionsReadAsAskedForToo) {
    std::mt19937 hasard(20240518);
    int faites = 0;
    for (int i = 0; i < kParagraphes; ++i) {
        ASSERT_NO_FATAL_FAILURE(Essaie(hasard, true, faites)) << "paragraph " << i;
    }
    EXPECT_GT(faites, kParagraphes / 2);
}
