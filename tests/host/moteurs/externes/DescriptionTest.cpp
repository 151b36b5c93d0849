// SPDX-License-Identifier: MPL-2.0
#include "moteurs/externes/DescriptionMoteur.h"

#include <gtest/gtest.h>

using namespace hote;

namespace {

std::optional<DescriptionMoteur> Lis(char const* json, QString* faute = nullptr) {
    QString locale;
    return LisDescription(json, {QStringLiteral("/ici"), QStringLiteral("/npm"), {}},
                          faute != nullptr ? *faute : locale);
}

} // namespace

TEST(Description, ReadsWhatAnEngineIsAndFillsItsPlacesIn) {
    auto const description = Lis(R"({"contrat": 1, "nom": "essai", "langues": ["fr", "en-GB"],
                "commande": ["sh", "{dossier}/e.sh", "{donnees}"], "fichiers": ["{donnees}/x"]})");
    ASSERT_TRUE(description);
    EXPECT_EQ(description->commande, (std::vector<std::string>{"sh", "/ici/e.sh", "/npm"}));
    EXPECT_TRUE(description->Juge(QStringLiteral("fr-CA")));
    EXPECT_TRUE(description->Juge(QStringLiteral("en-GB")));
    EXPECT_FALSE(description->Juge(QStringLiteral("en-US")));
    EXPECT_FALSE(description->EstPresent());
}

TEST(Description, SaysWhatIsWrongWithABadOne) {
    for (char const* mauvaise :
         {"", "[]", "{", R"({"contrat": 2, "nom": "a", "langues": ["fr"], "commande": ["sh"]})",
          R"({"contrat": 1, "nom": "../a", "langues": ["fr"], "commande": ["sh"]})",
          R"({"contrat": 1, "nom": "a", "langues": [], "commande": ["sh"]})",
          R"({"contrat": 1, "nom": "a", "langues": ["fr"], "commande": []})"}) {
        QString faute;
        EXPECT_FALSE(Lis(mauvaise, &faute)) << mauvaise;
        EXPECT_FALSE(faute.isEmpty()) << mauvaise;
    }
}
