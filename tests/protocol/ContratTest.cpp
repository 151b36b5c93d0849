// SPDX-License-Identifier: MPL-2.0
#include "Contrat.h"
#include "Langues.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <utility>

using contrat::PlageDeStyle;

namespace {

std::string Lis(std::string const& nom) {
    std::ifstream fichier(std::string(DOSSIER_PROTOCOLE) + '/' + nom);
    EXPECT_TRUE(fichier) << nom;
    return {std::istreambuf_iterator<char>(fichier), {}};
}

} // namespace

TEST(Contract, AnInstanceIsAnElementOfABusNameAndOfAPath) {
    for (char const* const bonne : {"a", "_", "A9_", "texte_12_abc"}) {
        EXPECT_TRUE(contrat::EstInstanceValide(bonne)) << bonne;
    }
    for (char const* const mauvaise : {"", "9a", "a-b", "a b", "a/b", "a~b", "a.b", "\xC3\xA9"}) {
        EXPECT_FALSE(contrat::EstInstanceValide(mauvaise)) << mauvaise;
    }
    EXPECT_FALSE(contrat::EstInstanceValide(std::string_view("a\0b", 3)));
}

TEST(Contract, TheLongestInstanceFillsABusName) {
    std::string const longue(contrat::kLongueurInstanceMax, 'a');
    EXPECT_EQ((contrat::kPrefixeService + longue).size(), 255U);
    EXPECT_TRUE(contrat::EstInstanceValide(longue));
    EXPECT_FALSE(contrat::EstInstanceValide(longue + 'a'));
}

TEST(Contract, TheInterfacesAreCalledAsInTheirDescriptions) {
    for (std::string const nom : {contrat::kInterfaceProxy, contrat::kInterfaceDocuments}) {
        EXPECT_NE(Lis(nom + ".xml").find("<interface name=\"" + nom + "\">"), std::string::npos);
    }
}

TEST(Contract, ALengthWrapsRoundWhereARunEndsBeforeItStarts) {
    EXPECT_EQ((PlageDeStyle{4, 9, 0}).DonneLongueur(), 5);
    EXPECT_EQ((PlageDeStyle{7, 3, 0}).DonneLongueur(), -4);
    EXPECT_EQ((PlageDeStyle{INT32_MIN, INT32_MAX, 0}).DonneLongueur(), -1);
}

TEST(Contract, EveryErrorHasANameOfItsOwnInTheEnumerationsOrder) {
    std::set<std::string> noms;
    int rang = 0;
    for (contrat::ErreurNommee const& nommee : contrat::kErreurs) {
        EXPECT_EQ(static_cast<int>(nommee.erreur), rang++) << nommee.nom;
        EXPECT_STREQ(contrat::DonneNom(nommee.erreur), nommee.nom);
        EXPECT_TRUE(noms.insert(nommee.nom).second) << nommee.nom;
    }
    EXPECT_EQ(rang - 1, static_cast<int>(contrat::Erreur::Interne));
}

TEST(Contract, TheReadmeTellsEveryErrorInTheSameOrderAndTheirPrefix) {
    std::string const texte = Lis("README.md");
    EXPECT_NE(texte.find(std::string("`") + contrat::kPrefixeErreur), std::string::npos);
    std::size_t place = 0;
    for (contrat::ErreurNommee const& nommee : contrat::kErreurs) {
        std::size_t const suivante = texte.find(std::string("\n| `") + nommee.nom + "` |", place);
        ASSERT_NE(suivante, std::string::npos) << nommee.nom;
        place = suivante;
    }
}

TEST(Languages, StandInTheFileForOthersAsInTheHeader) {
    std::string const json = Lis("langues.json");
    std::string attendu;
    int numero = 0;
    for (contrat::LangueNumerotee const& langue : contrat::kLangues) {
        EXPECT_EQ(langue.numero, ++numero) << langue.etiquette;
        attendu += attendu.empty() ? "\n    " : ",\n    ";
        attendu += "{\"numero\": " + std::to_string(langue.numero) + ", \"etiquette\": \"" +
                   langue.etiquette + "\"}";
    }
    EXPECT_LT(numero, int{contrat::kAutreLangue});
    EXPECT_NE(json.find("\"autre\": " + std::to_string(contrat::kAutreLangue)), std::string::npos);
    EXPECT_NE(json.find("\"langues\": [" + attendu + "\n  ]"), std::string::npos);
}

TEST(Languages, KeepTheNumbersThatTheyOnceHad) {
    for (auto const& [etiquette, numero] :
         {std::pair{"fr", 1}, {"en", 5}, {"de", 11}, {"zh-TW", 82}, {"dv", 150}}) {
        EXPECT_EQ(int{contrat::DonneNumeroDeLangue(etiquette)}, numero) << etiquette;
    }
}

TEST(Languages, ATagIsThatOfTheTableThatStartsIt) {
    auto const etiquette = [](char const* tag) {
        return std::string(contrat::DonneEtiquetteDeLangue(contrat::DonneNumeroDeLangue(tag)));
    };
    EXPECT_EQ(etiquette("en-GB"), "en-GB");
    EXPECT_EQ(etiquette("EN-gb-oed"), "en-GB");
    EXPECT_EQ(etiquette("fr-FR"), "fr");
    EXPECT_EQ(etiquette("sr-Latn-RS"), "sr-Latn");
    EXPECT_EQ(etiquette("ca-ES"), "ca");
    EXPECT_EQ(etiquette("ca-ES-valencia"), "ca-ES-valencia");
    EXPECT_EQ(contrat::DonneNumeroDeLangue(""), 0);
    EXPECT_EQ(contrat::DonneNumeroDeLangue("tlh-Latn"), contrat::kAutreLangue);
    EXPECT_EQ(contrat::DonneNumeroDeLangue("f"), contrat::kAutreLangue);
    EXPECT_EQ(contrat::DonneNumeroDeLangue("fran\xC3\xA7"
                                           "ais"),
              contrat::kAutreLangue);
    EXPECT_EQ(contrat::DonneEtiquetteDeLangue(0), "");
    EXPECT_EQ(contrat::DonneEtiquetteDeLangue(contrat::kAutreLangue), "");
}
