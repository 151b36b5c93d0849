// SPDX-License-Identifier: MPL-2.0
#include "langue/Articles.h"
#include "LexiqueFaux.h"

#include <QHash>

#include <gtest/gtest.h>

using namespace hote;

namespace {

QString S(char const* utf8) {
    return QString::fromUtf8(utf8);
}

class ThesaurusFaux : public Thesaurus {
  public:
    explicit ThesaurusFaux(QStringList const& entrees)
        : entrees_(entrees) {}
    std::vector<Sens> Cherche(QString const& entree) override {
        if (!entrees_.contains(entree)) {
            return {};
        }
        return {{S("Nom"), {{entree + S("-bis"), {}}}}};
    }

  private:
    QStringList entrees_;
};

class Articles : public ::testing::Test {
  protected:
    /// What is found for the selection [debut, fin) of the text: the word, then the entries.
    QStringList Cherche(char const* texte, int debut, int fin) {
        ThesaurusFaux thesaurus({S("chat"), S("ami"), S("aujourd'hui"), S("chemin de fer"),
                                 S("marche"), S("marcher"), S("école")});
        QString const entier = S(texte);
        auto const trouve = ChercheArticles(entier, debut, fin, thesaurus, lexique_);
        QStringList mots{entier.mid(trouve.mot.debut, trouve.mot.fin - trouve.mot.debut)};
        for (Article const& article : trouve.articles) {
            mots.append(article.entree);
        }
        return mots;
    }

    LexiqueFaux lexique_{Langue::Francais, {}};
};

} // namespace

TEST_F(Articles, WithoutASelectionTheWordAtTheCaretIsLookedUp) {
    for (int caret : {3, 5, 7}) {
        EXPECT_EQ(Cherche("un chat noir", caret, caret), (QStringList{S("chat"), S("chat")}))
            << caret;
    }
    EXPECT_EQ(Cherche("un chat noir", 0, 0), QStringList{S("un")});
}

TEST_F(Articles, ASelectionOfSeveralWordsIsLookedUpAsAWholeWithoutTheSpacesAround) {
    EXPECT_EQ(Cherche("le chemin de fer.", 2, 16),
              (QStringList{S("chemin de fer"), S("chemin de fer")}));
}

TEST_F(Articles, WhereNoWordStandsThereIsNone) {
    EXPECT_EQ(Cherche("un  chat", 3, 3), QStringList{S("")});
    EXPECT_EQ(Cherche("un   chat", 2, 5), QStringList{S("")});
    EXPECT_EQ(Cherche("", 0, 0), QStringList{S("")});
}

TEST_F(Articles, BoundsOutsideTheTextAreBroughtBackIntoIt) {
    EXPECT_EQ(Cherche("chat", -5, 99), (QStringList{S("chat"), S("chat")}));
    EXPECT_EQ(Cherche("chat", 99, -5), (QStringList{S("chat"), S("chat")}));
}

TEST_F(Articles, CapitalsDoNotHideAnEntry) {
    EXPECT_EQ(Cherche("CHAT", 0, 0), (QStringList{S("CHAT"), S("chat")}));
    EXPECT_EQ(Cherche("École", 0, 5), (QStringList{S("École"), S("école")}));
}

TEST_F(Articles, AFormIsLookedUpByItsStemsBehindTheWordItself) {
    lexique_.racines[S("chats")] = QStringList{S("chat")};
    lexique_.racines[S("marche")] = QStringList{S("marche"), S("marcher"), S("inconnu")};
    EXPECT_EQ(Cherche("des chats", 6, 6), (QStringList{S("chats"), S("chat")}));
    EXPECT_EQ(Cherche("marche", 0, 0), (QStringList{S("marche"), S("marche"), S("marcher")}));
}

TEST_F(Articles, AnElisionStaysOutsideUnlessTheWholeHasAnArticle) {
    EXPECT_EQ(Cherche("chez l’ami", 8, 8), (QStringList{S("ami"), S("ami")}));
    EXPECT_EQ(Cherche("aujourd’hui", 2, 2), (QStringList{S("aujourd’hui"), S("aujourd'hui")}));
    EXPECT_EQ(Cherche("l’inconnu", 4, 4), QStringList{S("l’inconnu")});
}

TEST_F(Articles, CombiningMarksAndCharactersOfTwoUnitsDoNotShiftTheWord) {
    EXPECT_EQ(Cherche("😀 e\u0301cole", 4, 4), (QStringList{S("e\u0301cole"), S("école")}));
}

TEST(CasseDesSynonymes, ASynonymTakesTheCapitalsOfTheWord) {
    EXPECT_EQ(DonneCasse(S("félin"), S("chat")), S("félin"));
    EXPECT_EQ(DonneCasse(S("élan"), S("Chat")), S("Élan"));
    EXPECT_EQ(DonneCasse(S("félin"), S("CHAT")), S("FÉLIN"));
    EXPECT_EQ(DonneCasse(S("accéder"), S("À")), S("Accéder"));
    EXPECT_EQ(DonneCasse(S("félin"), S("iPhone")), S("félin"));
    EXPECT_EQ(DonneCasse(S(""), S("Chat")), S(""));
}
