// SPDX-License-Identifier: MPL-2.0
#include "bus/ListeDocuments.h"

#include <gtest/gtest.h>

using namespace hote;

namespace {

ListeDocuments Lis(char const* reponse) {
    ListeDocuments liste;
    LisDocuments(QStringLiteral("A"), QString::fromUtf8(reponse), liste);
    return liste;
}

} // namespace

TEST(ListeDocuments, DocumentsComeInTheOrderOfTheAnswer) {
    auto const liste = Lis(R"([{"id":"A~2","titre":"é","chemin":"/x"},
                               {"id":"A~1","titre":"","chemin":"","autre":1}])");
    ASSERT_EQ(liste.documents.size(), 2U);
    EXPECT_EQ(liste.documents[0].id, QStringLiteral("A~2"));
    EXPECT_EQ(liste.documents[0].titre, QStringLiteral("é"));
    EXPECT_EQ(liste.documents[0].chemin, QStringLiteral("/x"));
    EXPECT_EQ(liste.documents[0].DonneInstance(), QStringLiteral("A"));
    EXPECT_TRUE(liste.avertissements.empty());
}

TEST(ListeDocuments, KindAndLanguageAreReadWhereTheyAreToldAndWhatTheContractHas) {
    auto const liste = Lis(
        R"([{"id":"A~1","titre":"","chemin":"","genre":"writer","langue":"zh-Hant-TW"},
            {"id":"A~2","titre":"","chemin":"","genre":"roman","langue":"fr\u001b[2J"},
            {"id":"A~3","titre":"","chemin":"","genre":7,"langue":["fr"]},
            {"id":"A~4","titre":"","chemin":"","langue":"x"}])");
    ASSERT_EQ(liste.documents.size(), 4U);
    EXPECT_EQ(liste.documents[0].genre, QStringLiteral("writer"));
    EXPECT_EQ(liste.documents[0].langue, QStringLiteral("zh-Hant-TW"));
    for (int i : {1, 2, 3}) {
        EXPECT_EQ(liste.documents[i].genre, QString()) << i;
        EXPECT_EQ(liste.documents[i].langue, QString()) << i;
    }
    EXPECT_TRUE(liste.avertissements.empty());
}

TEST(ListeDocuments, NoDocumentIsNoFault) {
    EXPECT_TRUE(Lis("[]").documents.empty());
    EXPECT_TRUE(Lis("[]").avertissements.empty());
}

TEST(ListeDocuments, AnAnswerThatIsNoListIsLeftOutWithOneWarning) {
    for (char const* reponse : {"", "{}", "null", "[", "\"x\"", "[[", "bonjour", "[1]", "[null]",
                                R"([{"id":"A~1"}])", R"([{"id":1,"titre":"","chemin":""}])",
                                R"([{"id":"A~1","titre":null,"chemin":""},{"id":2}])"}) {
        auto const liste = Lis(reponse);
        EXPECT_TRUE(liste.documents.empty()) << reponse;
        EXPECT_EQ(liste.avertissements.size(), 1U) << reponse;
        EXPECT_NE(liste.avertissements[0].find(" A "), std::string::npos);
    }
}

TEST(ListeDocuments, ADocumentOfSomebodyElseIsLeftOut) {
    auto const liste = Lis(R"([{"id":"B~1","titre":"","chemin":""},
                               {"id":"AA~1","titre":"","chemin":""},
                               {"id":"A","titre":"","chemin":""},
                               {"id":"A~1","titre":"bon","chemin":""}])");
    ASSERT_EQ(liste.documents.size(), 1U);
    EXPECT_EQ(liste.documents[0].titre, QStringLiteral("bon"));
    EXPECT_EQ(liste.avertissements.size(), 1U);
}

TEST(ListeDocuments, AnEndlessAnswerIsLeftOut) {
    QByteArray enorme("[");
    enorme += QByteArray(5 * 1024 * 1024, ' ') + ']';
    EXPECT_EQ(Lis(enorme.constData()).avertissements.size(), 1U);
    QByteArray profond = QByteArray(100000, '[') + QByteArray(100000, ']');
    EXPECT_EQ(Lis(profond.constData()).avertissements.size(), 1U);
}
