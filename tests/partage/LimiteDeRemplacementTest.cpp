// SPDX-License-Identifier: MPL-2.0
#include "partage/LimiteDeRemplacement.h"

#include "partage/ErreurDuService.h"

#include <gtest/gtest.h>

#include <string>

using compagnon::RemplacementDepuisUtf8;
using compagnon::VerifieRemplacement;
using contrat::kUnitesRemplacementMax;

namespace {

bool EstRefuse(std::u16string const& texte) {
    try {
        VerifieRemplacement(texte);
        return false;
    } catch (compagnon::ErreurDuService const& erreur) {
        return erreur.DonneCode() == contrat::Erreur::TropGrand;
    }
}

std::string Fois(std::size_t nombre, std::string const& lettre) {
    std::string texte;
    for (std::size_t i = 0; i < nombre; ++i) {
        texte += lettre;
    }
    return texte;
}

} // namespace

TEST(Replacement, MayBeAsLongAsTheLimitAndNotAUnitLonger) {
    EXPECT_FALSE(EstRefuse(std::u16string(kUnitesRemplacementMax, u'a')));
    EXPECT_TRUE(EstRefuse(std::u16string(kUnitesRemplacementMax + 1, u'a')));
}

TEST(Replacement, FromTheBusIsReadWholeUpToTheLimitInLettersOfAnyLength) {
    for (char const* const lettre : {"a", "\u00e9", "\u2019"}) {
        std::u16string const lu = RemplacementDepuisUtf8(Fois(kUnitesRemplacementMax, lettre));
        EXPECT_EQ(lu.size(), kUnitesRemplacementMax);
        EXPECT_FALSE(EstRefuse(lu));
    }
    EXPECT_EQ(RemplacementDepuisUtf8(Fois(kUnitesRemplacementMax / 2, "\U0001f600")).size(),
              kUnitesRemplacementMax);
    EXPECT_EQ(RemplacementDepuisUtf8("\u00e9t\u00e9"), u"\u00e9t\u00e9");
}

TEST(Replacement, FromTheBusThatIsTooLongIsRefusedWithoutBeingKept) {
    std::u16string const lu = RemplacementDepuisUtf8(std::string(50 << 20, 'a'));
    EXPECT_TRUE(EstRefuse(lu));
    EXPECT_LT(lu.size(), kUnitesRemplacementMax * 2);
    EXPECT_TRUE(EstRefuse(RemplacementDepuisUtf8(std::string(kUnitesRemplacementMax + 1, 'a'))));
}

TEST(Replacement, ThatIsNoUtf8IsEmpty) {
    EXPECT_EQ(RemplacementDepuisUtf8("\xff\xfe"), u"");
}
