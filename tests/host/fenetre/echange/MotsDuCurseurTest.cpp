// SPDX-License-Identifier: MPL-2.0
#include "fenetre/echange/MotsDuCurseur.h"

#include <gtest/gtest.h>

namespace hote {
namespace {

QString Q(char const* texte) {
    return QString::fromUtf8(texte);
}

TEST(MotsDuCurseur, ComeThroughAsTheyWere) {
    MotsDuCurseur mots;
    mots.texte = Q("un chat noir");
    mots.debutSelection = mots.finSelection = 4;
    mots.debut = 3;
    mots.fin = 7;
    mots.connu = false;
    mots.suggestions = QStringList{Q("chats")};
    mots.articles = {{Q("chat"), {{Q("(Nom)"), {{Q("félin"), {}}, {Q("chien"), Q("contraire")}}}}}};
    MotsDuCurseur const lus = LisMots(EnJson(mots));
    EXPECT_EQ(lus.DonneMot(), Q("chat"));
    EXPECT_EQ(lus.debutSelection, 4);
    EXPECT_FALSE(lus.connu);
    EXPECT_EQ(lus.suggestions, mots.suggestions);
    ASSERT_EQ(lus.articles.size(), 1U);
    EXPECT_EQ(lus.articles[0].sens[0].genre, Q("(Nom)"));
    EXPECT_EQ(lus.articles[0].sens[0].synonymes[1].note, Q("contraire"));
}

TEST(MotsDuCurseur, WithPlacesOutsideTheTextReadAsNothing) {
    MotsDuCurseur mots;
    mots.texte = Q("un");
    mots.fin = 3;
    EXPECT_TRUE(LisMots(EnJson(mots)).texte.isEmpty());
    EXPECT_TRUE(LisMots({}).texte.isEmpty());
}

} // namespace
} // namespace hote
