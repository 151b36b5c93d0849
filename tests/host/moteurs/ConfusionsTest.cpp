// SPDX-License-Identifier: MPL-2.0
#include "moteurs/internes/Confusions.h"

#include <gtest/gtest.h>

using namespace hote;

namespace {

/// "what stands there|first correction" of each remark.
std::vector<std::string> Cherche(char const* utf8, char const* langue) {
    QString const texte = QString::fromUtf8(utf8);
    std::vector<Remarque> remarques;
    ChercheConfusions({texte, {{0, texte.size(), QLatin1String(langue)}}}, remarques);
    std::vector<std::string> trouvees;
    trouvees.reserve(remarques.size());
    for (Remarque const& r : remarques) {
        trouvees.push_back(
            (texte.mid(r.debut, r.fin - r.debut) + QLatin1Char('|') + r.suggestions.first())
                .toStdString());
    }
    return trouvees;
}

using Trouvees = std::vector<std::string>;

} // namespace

TEST(Confusions, AreFoundInFrenchByTheWordsAround) {
    EXPECT_EQ(Cherche("Je ne sais pas ou il est.", "fr"), Trouvees{"ou|où"});
    EXPECT_EQ(Cherche("S'est une idée.", "fr"), Trouvees{"S'est|C'est"});
    EXPECT_EQ(Cherche("Il y a beaucoup de problème.", "fr-CA"), Trouvees{"problème|problèmes"});
    EXPECT_EQ(Cherche("Elle a oublié ça clé.", "fr"), Trouvees{"ça|sa"});
}

TEST(Confusions, AreFoundInEnglishByTheWordsAround) {
    EXPECT_EQ(Cherche("Your going to like it.", "en"), Trouvees{"Your|You're"});
    EXPECT_EQ(Cherche("It is to late.", "en-GB"), Trouvees{"to|too"});
    EXPECT_EQ(Cherche("She can sings and he must to leave.", "en"),
              (Trouvees{"to |", "sings|sing"}));
}

TEST(Confusions, GoodSentencesHaveNone) {
    EXPECT_EQ(Cherche("Je ne sais pas où il est, ni s'il vient ou non. Elle s'est levée. "
                      "Il a à cœur de finir à midi. On dit que ça porte bonheur. Qui est-elle ? "
                      "Il a parti pris. La reine est elle aussi venue. Peu de chose.",
                      "fr"),
              Trouvees{});
    EXPECT_EQ(Cherche("Its tail is long; your dog is nice. He is to blame. They want to eat too. "
                      "Does anyone have a pen? If everyone were here. More than they knew. "
                      "Fill in the form. The children don't know. The list is long.",
                      "en"),
              Trouvees{});
}

TEST(Confusions, AreOfTheirLanguageAlone) {
    EXPECT_EQ(Cherche("It is to late.", "fr"), Trouvees{});
    EXPECT_EQ(Cherche("Quel heure est-il ?", "de"), Trouvees{});
}
