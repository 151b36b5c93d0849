// SPDX-License-Identifier: MPL-2.0
#include "langue/JugeMot.h"
#include "LexiqueFaux.h"

#include <gtest/gtest.h>

using hote::Langue;
using hote::Mot;

namespace {

QString S(char const* utf8) {
    return QString::fromUtf8(utf8);
}

/// The wrong parts of all words of a text, with their places.
std::string Fautes(LexiqueFaux& lexique, char const* utf8) {
    QString const texte = S(utf8);
    std::vector<Mot> inconnus;
    for (Mot const& mot : hote::DecoupeEnMots(texte)) {
        hote::JugeMot(lexique, texte, mot, inconnus);
    }
    QStringList mots;
    for (Mot const& inconnu : inconnus) {
        mots.append(QStringLiteral("%1:").arg(inconnu.debut) +
                    texte.mid(inconnu.debut, inconnu.fin - inconnu.debut));
    }
    return mots.join(QLatin1Char(' ')).toStdString();
}

class MotsFrancais : public ::testing::Test {
  protected:
    std::string Fautes(char const* utf8) { return ::Fautes(lexique_, utf8); }

    LexiqueFaux lexique_{Langue::Francais,
                         {S("le"), S("chat"), S("école"), S("il"), S("va"), S("homme"), S("maison"),
                          S("aujourd'hui"), S("peut-être"), S("arc"), S("ciel"), S("en")}};
};

} // namespace

TEST_F(MotsFrancais, UnknownWordsAreMistakesAtTheirPlace) {
    EXPECT_EQ(Fautes("le chta va"), "3:chta");
    EXPECT_EQ(Fautes("😀 chta e\u0301cole"), "3:chta");
    EXPECT_EQ(Fautes("le chat"), "");
}

TEST_F(MotsFrancais, OnlyTheWrongPartBehindAnElisionIsReported) {
    EXPECT_EQ(Fautes("l’école l'homme qu'il"), "");
    EXPECT_EQ(Fautes("l’écolle d'écolle"), "2:écolle 11:écolle");
    EXPECT_EQ(Fautes("aujourd'hui aujourd'huy"), "12:aujourd'huy");
}

TEST_F(MotsFrancais, AnElisionBeforeAConsonantIsAMistakeAsAWhole) {
    EXPECT_EQ(Fautes("l'maison"), "0:l'maison");
}

TEST_F(MotsFrancais, OnlyTheWrongPartBetweenHyphensIsReported) {
    EXPECT_EQ(Fautes("peut-être va-t-il arc-en-ciel"), "");
    EXPECT_EQ(Fautes("arc-en-ciell va-t-ill"), "7:ciell 18:ill");
    EXPECT_EQ(Fautes("l'arc-en-ciell"), "9:ciell");
}

TEST_F(MotsFrancais, TheDictionaryIsAskedForComposedWords) {
    Fautes("e\u0301co\u00adle peut\u2011être");
    EXPECT_EQ(lexique_.demandes, (QStringList{S("école"), S("peut-être")}));
}

TEST(MotsAnglais, APossessiveIsJudgedByItsOwner) {
    LexiqueFaux lexique{Langue::Anglais, {S("the"), S("dog"), S("don't"), S("well"), S("known")}};
    EXPECT_EQ(Fautes(lexique, "the dog's don't well-known"), "");
    EXPECT_EQ(Fautes(lexique, "the dgo’s don'tt"), "4:dgo 10:don'tt");
}

TEST(MotsAnglais, ElisionsAreFrenchOnly) {
    LexiqueFaux lexique{Langue::Anglais, {S("the")}};
    EXPECT_EQ(Fautes(lexique, "d'the"), "0:d'the");
}
