// SPDX-License-Identifier: MPL-2.0
#include "modele/EditionMinimale.h"
#include "TirageDeTextes.h"
#include "modele/Frontieres.h"

#include <gtest/gtest.h>

using compagnon::CoupeCaractere;
using compagnon::CoupePaire;
using compagnon::EditionMinimale;

namespace {

struct Cas {
    std::u16string_view ancien;
    std::u16string_view nouveau;
    std::size_t debut;
    std::size_t retire;
    std::u16string_view ajout;
};

std::u16string Applique(std::u16string_view ancien, EditionMinimale const& edition) {
    std::u16string resultat(ancien);
    resultat.replace(edition.debut, edition.retire, edition.ajout);
    return resultat;
}

} // namespace

TEST(MinimalEdit, TouchesOnlyWhatDiffers) {
    Cas const table[] = {
        {u"", u"", 0, 0, u""},
        {u"chat", u"chat", 4, 0, u""},
        {u"", u"chat", 0, 0, u"chat"},
        {u"chat", u"", 0, 4, u""},
        {u"gatte", u"gâte", 1, 2, u"â"},
        {u"chat", u"chats", 4, 0, u"s"},
        {u"les chat noirs", u"les chats noirs", 8, 0, u"s"},
        {u"abc", u"xbc", 0, 1, u"x"},
        {u"abc", u"abx", 2, 1, u"x"},
    };
    for (Cas const& cas : table) {
        EditionMinimale const edition = EditionMinimale::Entre(cas.ancien, cas.nouveau);
        EXPECT_EQ(edition.debut, cas.debut);
        EXPECT_EQ(edition.retire, cas.retire);
        EXPECT_EQ(edition.ajout, cas.ajout);
    }
}

TEST(MinimalEdit, OfRepeatedLettersTheLastOnesCountAsChanged) {
    EditionMinimale const ajout = EditionMinimale::Entre(u"aa", u"aaa");
    EXPECT_EQ(ajout.debut, 2U);
    EXPECT_EQ(ajout.ajout, u"a");
    EditionMinimale const retrait = EditionMinimale::Entre(u"aaa", u"aa");
    EXPECT_EQ(retrait.debut, 2U);
    EXPECT_EQ(retrait.retire, 1U);
}

TEST(MinimalEdit, ChangesASurrogatePairAsAWhole) {
    // The two emoji share their first unit; the two letters beyond the basic plane their second.
    EditionMinimale const emoji = EditionMinimale::Entre(u"a\U0001F600b", u"a\U0001F601b");
    EXPECT_EQ(emoji.debut, 1U);
    EXPECT_EQ(emoji.retire, 2U);
    EXPECT_EQ(emoji.ajout, u"\U0001F601");
    EditionMinimale const memeFin = EditionMinimale::Entre(u"a\U00010400b", u"a\U00010800b");
    EXPECT_EQ(memeFin.retire, 2U);
    EXPECT_EQ(memeFin.ajout, u"\U00010800");
}

TEST(MinimalEdit, ChangesALetterWithItsCombiningMark) {
    EditionMinimale const lettre = EditionMinimale::Entre(u"cafe\u0301s", u"cafa\u0301s");
    EXPECT_EQ(lettre.debut, 3U);
    EXPECT_EQ(lettre.retire, 2U);
    EditionMinimale const marque = EditionMinimale::Entre(u"cafe\u0301", u"cafe\u0300");
    EXPECT_EQ(marque.debut, 3U);
    EXPECT_EQ(marque.retire, 2U);
    EditionMinimale const ajoutee = EditionMinimale::Entre(u"cafe", u"cafe\u0301");
    EXPECT_EQ(ajoutee.debut, 3U);
    EXPECT_EQ(ajoutee.retire, 1U);
}

TEST(MinimalEdit, DoesNotPartAJoinedEmoji) {
    EditionMinimale const edition =
        EditionMinimale::Entre(u"\U0001F468\u200D\U0001F469", u"\U0001F468\u200D\U0001F466");
    EXPECT_EQ(edition.debut, 0U);
    EXPECT_EQ(edition.retire, 5U);
}

TEST(MinimalEdit, GivesTheNewTextAndCannotBeShortenedForAnyRandomPair) {
    Hasard hasard(20240);
    for (int tour = 0; tour < 100000; ++tour) {
        bool const lettres = tour % 2 == 0;
        std::u16string const ancien = lettres ? hasard.Lettres(8) : hasard.Caracteres(6);
        std::u16string const nouveau = lettres ? hasard.Lettres(8) : hasard.Caracteres(6);
        EditionMinimale const edition = EditionMinimale::Entre(ancien, nouveau);
        ASSERT_EQ(Applique(ancien, edition), nouveau);

        std::size_t const fin = edition.debut + edition.retire;
        std::size_t const finNouveau = edition.debut + edition.ajout.size();
        ASSERT_FALSE(CoupePaire(ancien, edition.debut) || CoupePaire(ancien, fin));
        ASSERT_FALSE(CoupeCaractere(ancien, edition.debut) || CoupeCaractere(ancien, fin));
        ASSERT_FALSE(CoupeCaractere(nouveau, edition.debut) || CoupeCaractere(nouveau, finNouveau));

        // Every shorter span with whole characters at its borders would give another text.
        for (std::size_t debut = edition.debut; debut <= fin; ++debut) {
            for (std::size_t retire = 0; debut + retire <= fin; ++retire) {
                std::size_t const ajout = edition.ajout.size() + retire - edition.retire;
                if (retire >= edition.retire || ajout > edition.ajout.size() ||
                    CoupeCaractere(ancien, debut) || CoupeCaractere(nouveau, debut) ||
                    CoupeCaractere(ancien, debut + retire) ||
                    CoupeCaractere(nouveau, debut + ajout)) {
                    continue;
                }
                ASSERT_NE(Applique(ancien, {debut, retire,
                                            std::u16string_view(nouveau).substr(debut, ajout)}),
                          nouveau);
            }
        }
    }
}
