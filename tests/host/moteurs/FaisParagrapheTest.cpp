// SPDX-License-Identifier: MPL-2.0
#include "moteurs/FaisParagraphe.h"
#include "Contrat.h"
#include "Langues.h"

#include <gtest/gtest.h>

using namespace hote;

namespace {

std::vector<EtendueDeLangue> Etendues(std::vector<sdd::PlageAttribut> const& plages) {
    return FaisParagraphe(QStringLiteral("0123456789"), plages, QStringLiteral("fr")).langues;
}

std::uint16_t Langue(char const* etiquette) {
    return contrat::DonneStyleDeLangue(contrat::DonneNumeroDeLangue(etiquette));
}

} // namespace

TEST(Paragraphe, IsInTheDocumentsLanguageWhereItsStylesSayNothing) {
    EXPECT_EQ(Etendues({{2, 4, contrat::kStyleGras}}),
              (std::vector<EtendueDeLangue>{{0, 10, QStringLiteral("fr")}}));
}

TEST(Paragraphe, HasTheLanguagesThatItsStylesSay) {
    EXPECT_EQ(Etendues({{2, 4, Langue("en-GB")}}),
              (std::vector<EtendueDeLangue>{{0, 2, QStringLiteral("fr")},
                                            {2, 4, QStringLiteral("en-GB")},
                                            {4, 10, QStringLiteral("fr")}}));
}

TEST(Paragraphe, IsNotJudgedWhereItsStyleSaysSoOrNamesAnUnknownLanguage) {
    EXPECT_EQ(Etendues({{0, 4, contrat::kStyleSansCorrection},
                        {4, 10, contrat::DonneStyleDeLangue(contrat::kAutreLangue)}}),
              (std::vector<EtendueDeLangue>{{0, 10, QString()}}));
}

TEST(Paragraphe, DoesWithoutRunsBeyondItsEnd) {
    EXPECT_EQ(Etendues({{8, 14, Langue("en")}, {14, 20, Langue("de")}}),
              (std::vector<EtendueDeLangue>{{0, 8, QStringLiteral("fr")},
                                            {8, 10, QStringLiteral("en")}}));
}

TEST(Paragraphe, APartCanBeGivenAnotherLanguage) {
    auto paragraphe =
        FaisParagraphe(QStringLiteral("0123456789"), {{2, 4, Langue("en")}}, QStringLiteral("fr"));
    MetsLangue(paragraphe, 3, 6, QStringLiteral("de"));
    EXPECT_EQ(paragraphe.langues, (std::vector<EtendueDeLangue>{{0, 2, QStringLiteral("fr")},
                                                                {2, 3, QStringLiteral("en")},
                                                                {3, 6, QStringLiteral("de")},
                                                                {6, 10, QStringLiteral("fr")}}));
}
