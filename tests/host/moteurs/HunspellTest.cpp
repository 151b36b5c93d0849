// SPDX-License-Identifier: MPL-2.0
#include "Dossier.h"
#include "moteurs/internes/MoteurHunspell.h"

#include <gtest/gtest.h>

using namespace hote;

namespace {

class Hunspell : public ::testing::Test {
  protected:
    Hunspell() {
        dossier_.Pose("fr", {"le", "la", "chat", "dort", "est", "venu", "hier", "commission",
                             "Paris", "ami"});
        dossier_.Pose("en_GB", {"the", "colour", "cat", "is", "of"});
        dossier_.Pose("en_US", {"the", "color", "cat", "is", "of"});
        dossier_.Pose("de_AT", {"Haus", "das", "Wien"});
    }

    std::vector<std::string> Cherche(char const* utf8, char const* langue = "fr") {
        QString const texte = QString::fromUtf8(utf8);
        std::vector<std::string> mots;
        for (auto const& r :
             moteur().Examine({texte, {{0, texte.size(), QLatin1String(langue)}}}, Arret())) {
            derniere_ = r;
            mots.push_back(texte.mid(r.debut, r.fin - r.debut).toStdString());
        }
        return mots;
    }
    MoteurHunspell& moteur() {
        if (!moteur_) {
            moteur_ = std::make_unique<MoteurHunspell>(dossier_.Dossiers());
        }
        return *moteur_;
    }

    using Mots = std::vector<std::string>;
    Dossier dossier_;
    std::unique_ptr<MoteurHunspell> moteur_;
    Remarque derniere_;
};

} // namespace

TEST_F(Hunspell, FindsWordsThatTheDictionaryOfTheRunDoesNotKnow) {
    EXPECT_EQ(Cherche("le chatt dort"), Mots{"chatt"});
    EXPECT_EQ(derniere_.suggestions.first(), QLatin1String("chat"));
    EXPECT_EQ(derniere_.regle, QLatin1String("mot-inconnu"));
}

TEST_F(Hunspell, JudgesEachRunInItsOwnLanguage) {
    QString const texte = QStringLiteral("le cat the chat");
    auto const remarques = moteur().Examine(
        {texte, {{0, 7, QStringLiteral("fr")}, {7, 15, QStringLiteral("en-GB")}}}, Arret());
    ASSERT_EQ(remarques.size(), 2U);
    EXPECT_EQ(remarques[0].debut, 3);
    EXPECT_EQ(remarques[1].debut, 11);
}

TEST_F(Hunspell, JudgesByTheCountryOfTheRun) {
    EXPECT_EQ(Cherche("the color", "en-GB"), Mots{"color"});
    EXPECT_EQ(Cherche("the colour", "en-US"), Mots{"colour"});
}

TEST_F(Hunspell, JudgesTextWithoutACountryByTheVariantThatKnowsMostOfIt) {
    EXPECT_EQ(Cherche("the colour of the cat", "en"), Mots{});
    // Only once it is clear which it is.
    EXPECT_EQ(Cherche("the color", "en"), Mots{});
    EXPECT_EQ(
        Cherche("colour colour colour colour colour colour colour colour colour colour", "en"),
        Mots{});
    EXPECT_EQ(Cherche("the color", "en"), Mots{"color"});
}

TEST_F(Hunspell, TakesAnotherCountrysDictionaryWhereThereIsNoneOfItsOwn) {
    EXPECT_EQ(Cherche("das Haus", "de-CH"), Mots{});
    EXPECT_TRUE(moteur().Juge(QStringLiteral("de")));
    EXPECT_FALSE(moteur().Juge(QStringLiteral("es")));
}

TEST_F(Hunspell, TakesCapitalisedWordsInsideSentencesForNames) {
    EXPECT_EQ(Cherche("hier Kraków est venu, Zbigniew dort, la REFX dort"), Mots{});
}

TEST_F(Hunspell, ANameVeryNearAWordIsAskedAboutAndHardlySure) {
    EXPECT_EQ(Cherche("la Commision est venu"), Mots{"Commision"});
    EXPECT_EQ(derniere_.regle, QLatin1String(kRegleNom));
    EXPECT_LT(derniere_.surete, 0.5);
}

TEST_F(Hunspell, AWordThatOnlyBeginsTheSentenceIsJudgedLikeAnyOther) {
    EXPECT_EQ(Cherche("Chatt dort"), Mots{"Chatt"});
    EXPECT_EQ(derniere_.regle, QLatin1String("mot-inconnu"));
}

TEST_F(Hunspell, ANameIsKnownAtASentencesBeginningOnceItWasSeenInsideOne) {
    EXPECT_EQ(Cherche("hier Chatt est venu"), Mots{"Chatt"});
    Cherche("Chatt dort");
    EXPECT_EQ(derniere_.regle, QLatin1String(kRegleNom));
}

TEST_F(Hunspell, ANameThatAnotherDictionaryKnowsIsNoMistake) {
    EXPECT_EQ(Cherche("hier Wien est venu"), Mots{});
    EXPECT_EQ(Cherche("la ville de Pariss", "fr").back(), "Pariss");
}
