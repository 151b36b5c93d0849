// SPDX-License-Identifier: MPL-2.0
// Random zones go there and back unchanged; seeded, so that a failure comes back.
#include "DocumentsJson.h"
#include "ZoneJson.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <random>
#include <string>
#include <vector>

namespace {

class Hasard {
  public:
    explicit Hasard(unsigned graine)
        : moteur_(graine) {}

    int Entre(int min, int max) { return std::uniform_int_distribution<int>(min, max)(moteur_); }

    /// Whole characters of every kind but U+0000, which ends a text.
    UniChaine Texte(int longueurMax) {
        static constexpr char16_t const* kPieces[] = {
            u"a",      u" ",      u"\u00E9",     u"\u0301",    u"\u2019", u"\u00A0",
            u"\uFEFF", u"\uFFFF", u"\n",         u"\x07",      u"\"",     u"\\",
            u"\u65E5", u"\u200D", u"\U0001F600", u"\U0010FFFF"};
        UniChaine texte;
        for (int reste = Entre(0, longueurMax); reste > 0; --reste) {
            texte.Ajoute(U(kPieces[Entre(0, static_cast<int>(std::size(kPieces)) - 1)]));
        }
        return texte;
    }

    /// Runs in order that neither meet nor stand empty.
    TexteAvecAttributs TexteAvecStyles(int longueurMax) {
        TexteAvecAttributs texte(sdd::T(Texte(longueurMax)));
        for (int debut = Entre(0, 5); debut < texte.Longueur();) {
            int const fin = std::min(debut + Entre(1, 6), texte.Longueur());
            texte.MetsAttribut(debut, fin - debut, static_cast<std::uint16_t>(Entre(1, 65535)));
            debut = fin + Entre(0, 4);
        }
        return texte;
    }

  private:
    std::mt19937 moteur_;
};

constexpr int kEssais = 2000;

TEST(ZoneRoundTrip, AttributedStringsComeBackWithTheirRuns) {
    Hasard hasard(1);
    for (int essai = 0; essai < kEssais; ++essai) {
        auto const texte = hasard.TexteAvecStyles(40);
        auto nom = U(u"old");
        EXPECT_EQ(texte, JsonVersChaineAttribuee(ChaineAttribueeVersJson(texte), nom)) << essai;
        EXPECT_TRUE(nom.EstVide()) << essai;
    }
}

TEST(ZoneRoundTrip, ZonesComeBackWithNameTextAndRuns) {
    Hasard hasard(2);
    for (int essai = 0; essai < kEssais; ++essai) {
        auto const texte = hasard.TexteAvecStyles(40);
        auto const nom = hasard.Texte(8);
        std::vector<contrat::PlageDeStyle> styles;
        styles.reserve(texte.DonnePlages().size());
        for (auto const& plage : texte.DonnePlages()) {
            styles.push_back({plage.debut, plage.fin, plage.attribut});
        }
        UniChaine nomRelu;
        auto const json = ZoneVersJson(styles, TexteDe(texte), nom);
        EXPECT_EQ(texte, JsonVersChaineAttribuee(json, nomRelu)) << essai;
        EXPECT_EQ(nom, nomRelu) << essai;

        auto const zones = LisTout(Liste(json.VersUtf8())).zones;
        ASSERT_EQ(1U, zones.size()) << essai;
        EXPECT_EQ(nom, zones[0].nom) << essai;
        EXPECT_EQ(TexteDe(texte), zones[0].texte) << essai;
        EXPECT_EQ(styles, zones[0].styles) << essai;
    }
}

TEST(ZoneRoundTrip, RunsOfAnyNumbersComeBackAsTheyWere) {
    Hasard hasard(3);
    std::mt19937 moteur(4);
    for (int essai = 0; essai < kEssais; ++essai) {
        std::vector<contrat::PlageDeStyle> styles(static_cast<std::size_t>(hasard.Entre(0, 6)));
        for (auto& plage : styles) {
            plage = {static_cast<std::int32_t>(moteur()), static_cast<std::int32_t>(moteur()),
                     static_cast<std::uint16_t>(moteur())};
        }
        auto const zones = LisTout(Liste(ZoneVersJson(styles, {}, {}).VersUtf8())).zones;
        ASSERT_EQ(1U, zones.size()) << essai;
        EXPECT_EQ(styles, zones[0].styles) << essai;
    }
}

} // namespace
