// SPDX-License-Identifier: MPL-2.0
#include "moteurs/internes/MoteurRegles.h"

#include <gtest/gtest.h>

using namespace hote;

namespace {

/// "rule|what stands there|what should" of each remark.
std::vector<std::string> Cherche(char const* utf8, char const* langue = "fr",
                                 bool espacesFrancaises = true) {
    QString const texte = QString::fromUtf8(utf8);
    std::vector<std::string> trouvees;
    MoteurRegles moteur(espacesFrancaises);
    for (auto const& r :
         moteur.Examine({texte, {{0, texte.size(), QLatin1String(langue)}}}, Arret())) {
        trouvees.push_back((r.regle + QLatin1Char('|') + texte.mid(r.debut, r.fin - r.debut) +
                            QLatin1Char('|') + r.suggestions.first())
                               .toStdString());
    }
    return trouvees;
}

using Trouvees = std::vector<std::string>;

} // namespace

TEST(Regles, FindsAWordWrittenTwice) {
    EXPECT_EQ(Cherche("il mange le le pain"), Trouvees{"mot-double|le le|le"});
    EXPECT_EQ(Cherche("The the cat", "en"), Trouvees{"mot-double|The the|The"});
}

TEST(Regles, LeavesWordsThatGoodSentencesRepeat) {
    EXPECT_EQ(Cherche("nous nous levons, vous vous taisez"), Trouvees{});
    EXPECT_EQ(Cherche("I know that that is all he had had", "en"), Trouvees{});
    EXPECT_EQ(Cherche("à Bora Bora, dors-tu tu le sais, 10 10"), Trouvees{});
}

TEST(Regles, FindsDoubledSpacesButNotBehindASentenceNorInColumns) {
    EXPECT_EQ(Cherche("le  chat"), Trouvees{"espaces-doubles|  | "});
    EXPECT_EQ(Cherche("Fin.  Le nom       la valeur"), Trouvees{});
}

TEST(Regles, FindsASpaceBeforeACommaOrAFullStop) {
    EXPECT_EQ(Cherche("le chat , la"), Trouvees{"espace-avant| ,|,"});
    EXPECT_EQ(Cherche("le chat ."), Trouvees{"espace-avant| .|."});
    EXPECT_EQ(Cherche("le .NET, la suite ... et 3 ,5"), Trouvees{});
}

TEST(Regles, FindsAMissingSpaceBehindACommaOrAFullStop) {
    EXPECT_EQ(Cherche("le chat,la"), Trouvees{"espace-apres|,|, "});
    EXPECT_EQ(Cherche("la fin.Le chat"), Trouvees{"espace-apres|.|. "});
    EXPECT_EQ(Cherche("3,5 p.ex. U.S.A. etc."), Trouvees{});
}

TEST(Regles, KnowsTheFrenchSpacesByCountry) {
    EXPECT_EQ(Cherche("quoi? rien"), Trouvees{"espace-francaise|?|\u202F?"});
    EXPECT_EQ(Cherche("voici: rien"), Trouvees{"espace-francaise|:|\u00A0:"});
    EXPECT_EQ(Cherche("quoi?", "fr-CA"), Trouvees{});
    EXPECT_EQ(Cherche("quoi ?", "fr-CA"), Trouvees{"espace-francaise| ?|?"});
    EXPECT_EQ(Cherche("quoi ? à 10:30"), Trouvees{});
    EXPECT_EQ(Cherche("what?", "en"), Trouvees{});
    EXPECT_EQ(Cherche("quoi?", "fr", false), Trouvees{});
}
