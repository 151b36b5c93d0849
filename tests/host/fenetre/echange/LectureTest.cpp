// SPDX-License-Identifier: MPL-2.0
#include "fenetre/echange/EcartJson.h"

#include <gtest/gtest.h>

namespace hote {
namespace {

ParagrapheDuDocument P(char const* texte) {
    QString const t = QString::fromUtf8(texte);
    return {t, {{0, t.size(), QStringLiteral("fr")}}};
}

std::vector<ParagrapheDuDocument> MetsAJour(std::vector<ParagrapheDuDocument> avant,
                                            std::vector<ParagrapheDuDocument> const& apres) {
    auto const lu = LisEcart(EnJson(Compare(avant, apres)));
    EXPECT_TRUE(lu && Applique(*lu, avant));
    return avant;
}

TEST(Lecture, BringsAReadingUpToDateWhateverChanged) {
    std::vector<ParagrapheDuDocument> const un{P("a"), P("b"), P("b"), P("c")};
    std::vector<std::vector<ParagrapheDuDocument>> const autres{
        {},
        un,
        {P("a"), P("x"), P("b"), P("c")},
        {P("a"), P("b"), P("b"), P("b"), P("c")},
        {P("b"), P("c")},
        {P("é\u0007")}};
    for (auto const& autre : autres) {
        EXPECT_EQ(MetsAJour(un, autre), autre);
        EXPECT_EQ(MetsAJour(autre, un), un);
    }
}

TEST(Lecture, SendsTheChangedParagraphsAlone) {
    auto const ecart = Compare({P("a"), P("b"), P("c")}, {P("a"), P("x"), P("c")});
    EXPECT_EQ(ecart.gardesAuDebut, 1);
    EXPECT_EQ(ecart.gardesALaFin, 1);
    EXPECT_EQ(ecart.milieu, std::vector<ParagrapheDuDocument>{P("x")});
}

TEST(Lecture, CountsAChangeOfLanguageAsAChange) {
    ParagrapheDuDocument anglais = P("a");
    anglais.langues[0].langue = QStringLiteral("en");
    EXPECT_EQ(Compare({P("a")}, {anglais}).milieu.size(), 1U);
}

TEST(Lecture, ChangesNothingByADifferenceThatDoesNotFit) {
    std::vector<ParagrapheDuDocument> paragraphes{P("a"), P("b")};
    EXPECT_FALSE(Applique({2, 1, {}}, paragraphes));
    EXPECT_FALSE(Applique({-1, 0, {}}, paragraphes));
    EXPECT_EQ(paragraphes.size(), 2U);
}

TEST(Lecture, RefusesLanguagesThatDoNotCoverTheText) {
    QJsonObject objet = EnJson(P("abc"));
    objet.insert(QStringLiteral("t"), QStringLiteral("abcd"));
    EXPECT_FALSE(LisParagraphe(objet));
}

} // namespace
} // namespace hote
