// SPDX-License-Identifier: MPL-2.0
#include "langue/Orthographe.h"
#include "Langues.h"
#include "LexiqueFaux.h"

#include <gtest/gtest.h>

using hote::Faute;
using hote::Langue;
using hote::Orthographe;

namespace {

QString S(char const* utf8) {
    return QString::fromUtf8(utf8);
}

class OrthographeFrancaise : public ::testing::Test {
  protected:
    std::string Fautes(char const* utf8, Orthographe::Plages const& plages = {}) {
        QStringList mots;
        QString const texte = S(utf8);
        for (Faute const& faute : Orthographe(lexique_).Cherche(texte, plages)) {
            EXPECT_EQ(texte.mid(faute.debut, faute.fin - faute.debut), faute.mot);
            mots.append(QStringLiteral("%1:%2").arg(faute.debut).arg(faute.mot));
        }
        return mots.join(QLatin1Char(' ')).toStdString();
    }

    LexiqueFaux lexique_{Langue::Francais,
                         {S("le"), S("chat"), S("école"), S("il"), S("va"), S("homme"), S("maison"),
                          S("aujourd'hui"), S("peut-être"), S("arc"), S("ciel"), S("en")}};
};

/// Style runs: [debut, fin) in the language of that tag.
sdd::PlageAttribut EnLangue(int debut, int fin, char const* etiquette) {
    return {debut, fin, contrat::DonneStyleDeLangue(contrat::DonneNumeroDeLangue(etiquette))};
}

class OrthographeAnglaise : public ::testing::Test {
  protected:
    LexiqueFaux lexique_{Langue::Anglais, {S("the"), S("dog"), S("don't"), S("well"), S("known")}};
};

} // namespace

TEST_F(OrthographeFrancaise, UnknownWordsAreMistakesAtTheirPlace) {
    EXPECT_EQ(Fautes("le chta va"), "3:chta");
    EXPECT_EQ(Fautes("😀 chta e\u0301cole"), "3:chta");
    EXPECT_EQ(Fautes("le chat"), "");
}

TEST_F(OrthographeFrancaise, OnlyTheWrongPartBehindAnElisionIsReported) {
    EXPECT_EQ(Fautes("l’école l'homme qu'il"), "");
    EXPECT_EQ(Fautes("l’écolle d'écolle"), "2:écolle 11:écolle");
    EXPECT_EQ(Fautes("aujourd'hui aujourd'huy"), "12:aujourd'huy");
}

TEST_F(OrthographeFrancaise, AnElisionBeforeAConsonantIsAMistakeAsAWhole) {
    EXPECT_EQ(Fautes("l'maison"), "0:l'maison");
}

TEST_F(OrthographeFrancaise, OnlyTheWrongPartBetweenHyphensIsReported) {
    EXPECT_EQ(Fautes("peut-être va-t-il arc-en-ciel"), "");
    EXPECT_EQ(Fautes("arc-en-ciell va-t-ill"), "7:ciell 18:ill");
    EXPECT_EQ(Fautes("l'arc-en-ciell"), "9:ciell");
}

TEST_F(OrthographeFrancaise, TextThatIsNotToBeProofedIsPassedOver) {
    // Bits beside the one that counts change nothing; touching a run is enough.
    EXPECT_EQ(Fautes("faux faux faux faux", {{0, 4, 64}, {5, 9, 3}, {10, 11, 65}, {15, 19, 32}}),
              "5:faux 15:faux");
    EXPECT_EQ(Fautes("faux faux", {{4, 5, 64}}), "0:faux 5:faux");
    EXPECT_EQ(Fautes("faux", {{0, 1, 3}, {1, 2, 64}, {2, 4, 3}}), "");
}

TEST_F(OrthographeFrancaise, TheDictionaryIsAskedForComposedWords) {
    Fautes("e\u0301co\u00adle peut\u2011être");
    EXPECT_EQ(lexique_.demandes, (QStringList{S("école"), S("peut-être")}));
}

TEST_F(OrthographeFrancaise, SuggestionsTakeTheApostropheOfTheText) {
    lexique_.suggestions[S("lecole")] = QStringList{S("l'école"), S("lécole")};
    Orthographe const orthographe(lexique_);
    Faute const faute{0, 6, S("lecole")};
    EXPECT_EQ(orthographe.Suggere(faute, false).first(), S("l'école"));
    EXPECT_EQ(orthographe.Suggere(faute, true).first(), S("l’école"));
    EXPECT_TRUE(Orthographe::AUneApostropheCourbe(S("lecole d’été")));
    EXPECT_FALSE(Orthographe::AUneApostropheCourbe(S("lecole d'été")));
}

TEST_F(OrthographeFrancaise, TheMistakeItselfIsNoSuggestion) {
    lexique_.suggestions[S("chta")] = QStringList{S("chta"), S("chat"), S("chat")};
    EXPECT_EQ(Orthographe(lexique_).Suggere({0, 4, S("chta")}, false), QStringList{S("chat")});
}

TEST_F(OrthographeAnglaise, APossessiveIsJudgedByItsOwner) {
    Orthographe const orthographe(lexique_);
    EXPECT_TRUE(orthographe.Cherche(S("the dog's don't well-known"), {}).empty());
    auto const fautes = orthographe.Cherche(S("the dgo’s don'tt"), {});
    ASSERT_EQ(fautes.size(), 2U);
    EXPECT_EQ(fautes[0].mot, S("dgo"));
    EXPECT_EQ(fautes[1].mot, S("don'tt"));
}

TEST_F(OrthographeAnglaise, ElisionsAreFrenchOnly) {
    EXPECT_EQ(Orthographe(lexique_).Cherche(S("d'the"), {}).size(), 1U);
}

class OrthographeDesDeux : public OrthographeFrancaise {
  protected:
    /// What is wrong, with the language that it was found wrong in; "the le " is a text of both.
    std::string Fautes(char const* utf8, Orthographe::Plages const& plages, bool anglaisLa = true) {
        QStringList mots;
        Orthographe const orthographe(lexique_, [&](Langue langue) -> hote::Lexique* {
            EXPECT_EQ(langue, Langue::Anglais);
            return anglaisLa ? &anglais_ : nullptr;
        });
        for (Faute const& faute : orthographe.Cherche(S(utf8), plages)) {
            mots.append(faute.mot + (faute.langue ? QStringLiteral("(en)") : QString()));
        }
        return mots.join(QLatin1Char(' ')).toStdString();
    }

    LexiqueFaux anglais_{Langue::Anglais, {S("the"), S("dog"), S("don't")}};
};

TEST_F(OrthographeDesDeux, WordsOfARunInTheOtherLanguageAreJudgedInIt) {
    EXPECT_EQ(Fautes("le dog the chat", {}), "dog the");
    EXPECT_EQ(Fautes("le dog the chat", {EnLangue(3, 10, "en-GB")}), "");
    EXPECT_EQ(Fautes("le chat the dgo", {EnLangue(3, 15, "en")}), "chat(en) dgo(en)");
}

TEST_F(OrthographeDesDeux, ARunInTheTextsOwnLanguageIsJudgedAsTheRest) {
    EXPECT_EQ(Fautes("le chta", {EnLangue(0, 7, "fr-CA")}), "chta");
}

TEST_F(OrthographeDesDeux, ARunInALanguageWithoutADictionaryIsNotJudged) {
    EXPECT_EQ(Fautes("le hund chta", {EnLangue(3, 7, "de-AT")}), "chta");
    EXPECT_EQ(Fautes("le hund chta", {EnLangue(3, 7, "tlh")}), "chta");
    EXPECT_EQ(Fautes("le dgo chta", {EnLangue(3, 6, "en")}, false), "chta");
    EXPECT_EQ(Fautes("le hund chta", {{3, 7, 254U << 8U}}), "chta") << "one that came later";
}

TEST_F(OrthographeDesDeux, AWordThatIsInTwoLanguagesIsNotJudged) {
    EXPECT_EQ(Fautes("le chtadgo", {EnLangue(3, 7, "fr"), EnLangue(7, 10, "en")}), "");
}

TEST_F(OrthographeDesDeux, SuggestionsAreThoseOfTheLanguageOfTheMistake) {
    Orthographe const orthographe(lexique_, [&](Langue) -> hote::Lexique* { return &anglais_; });
    anglais_.suggestions[S("dgo")] = QStringList{S("dog")};
    EXPECT_EQ(orthographe.Suggere({0, 3, S("dgo"), Langue::Anglais}, false), QStringList{S("dog")});
}
