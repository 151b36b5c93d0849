// SPDX-License-Identifier: MPL-2.0
#include "BancDeFenetre.h"

namespace hote {
namespace {

using PageMotsTest = BancDeFenetre;

MotsDuCurseur FaisMots() {
    MotsDuCurseur mots;
    mots.texte = Q("Chat noir");
    mots.fin = 4;
    mots.articles = {{Q("chat"), {{Q("(Nom)"), {{Q("félin"), {}}, {Q("matou"), {}}}}}}};
    return mots;
}

TEST_F(PageMotsTest, AsksWhatIsSelectedWhenItIsShown) {
    int demandes = 0;
    QObject::connect(&fenetre->DonneMots(), &PageMots::Demandee, [&] { ++demandes; });
    fenetre->Leve(Q("mots"));
    EXPECT_GT(demandes, 0);
    EXPECT_EQ(fenetre->currentWidget(), &fenetre->DonneMots());
}

TEST_F(PageMotsTest, ReplacesByTheSynonymChosenWithTheWordsCapital) {
    fenetre->Leve(Q("mots"));
    fenetre->DonneMots().Montre(FaisMots());
    EXPECT_TRUE(EstDit(Q("« Chat » : synonymes")));
    QString nouveau;
    QObject::connect(&fenetre->DonneMots(), &PageMots::Remplace,
                     [&](MotsDuCurseur const&, QString const& mot) { nouveau = mot; });
    Appuie(Qt::Key_Down);
    Appuie(Qt::Key_Return);
    EXPECT_EQ(nouveau, Q("Matou"));
}

TEST_F(PageMotsTest, OffersSpellingsOfAWordThatIsWrong) {
    MotsDuCurseur mots = FaisMots();
    mots.connu = false;
    mots.suggestions = QStringList{Q("chats")};
    mots.articles.clear();
    fenetre->Leve(Q("mots"));
    fenetre->DonneMots().Montre(mots);
    EXPECT_TRUE(EstDit(Q("n’est pas dans le dictionnaire")));
    auto* const arbre = Trouve<QTreeWidget>(Q("Synonymes"));
    EXPECT_EQ(arbre->topLevelItem(0)->child(0)->text(0), Q("chats"));
}

TEST_F(PageMotsTest, SaysThatNoWordIsSelectedAndThatTheDocumentRefused) {
    fenetre->Leve(Q("mots"));
    EXPECT_TRUE(EstDit(Q("Aucun mot n’est sélectionné")));
    fenetre->DonneMots().MontreIssue(false);
    EXPECT_TRUE(EstDit(Q("a refusé")));
}

} // namespace
} // namespace hote
