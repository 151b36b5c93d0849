// SPDX-License-Identifier: MPL-2.0
#include "langue/Decoupeur.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <iterator>
#include <random>

using hote::DecoupeEnMots;
using hote::DonneForme;

namespace {

QString S(char const* utf8) {
    return QString::fromUtf8(utf8);
}

/// The words as they stand in the text, joined by "|".
std::string Mots(QString const& texte) {
    QStringList mots;
    for (hote::Mot const& mot : DecoupeEnMots(texte)) {
        mots.append(texte.mid(mot.debut, mot.fin - mot.debut));
    }
    return mots.join(QLatin1Char('|')).toStdString();
}

std::string Mots(char const* utf8) {
    return Mots(S(utf8));
}

struct Cas {
    char const* texte;
    char const* mots;
};

} // namespace

TEST(Decoupeur, WordsAreCutAsFrenchAndEnglishWriteThem) {
    for (Cas const& cas : {
             Cas{"Le chat, noir.", "Le|chat|noir"},
             Cas{"l'école d’été qu'il", "l'école|d’été|qu'il"},
             Cas{"peut-être va-t-il arc\u2011en\u2010ciel",
                 "peut-être|va-t-il|arc\u2011en\u2010ciel"},
             Cas{"don't John's dogs' 'quoted'", "don't|John's|dogs|quoted"},
             Cas{"- tiret -- deux- -trois", "tiret|deux|trois"},
             Cas{"«guillemets» (parenthèses) [crochets]", "guillemets|parenthèses|crochets"},
             Cas{"et/ou fin.Début a,b", "et|ou|fin|Début"},
             Cas{"œuf Straße naïve ﬁn", "œuf|Straße|naïve|ﬁn"},
             Cas{"", ""},
             Cas{"   \t\u00a0\u202f ", ""},
             Cas{"…—!?", ""},
         }) {
        EXPECT_EQ(Mots(cas.texte), cas.mots) << cas.texte;
    }
}

TEST(Decoupeur, WhatNoDictionaryCanJudgeIsLeftOut) {
    for (Cas const& cas : {
             Cas{"un 2e H2O covid19 n°5 3,14", "un"},
             Cas{"le XVIIe siècle et Louis XIV, Ier", "le|siècle|et|Louis"},
             Cas{"Le Mer Les De Ce DIX", "Le|Mer|Les|De|Ce"},
             Cas{"mot(s) fonction(x)", "mot|fonction"},
             Cas{"a b y", ""},
             Cas{"voir https://exemple.fr/Page?x=é ici", "voir|ici"},
             Cas{"(http://a.b) www.exemple.ca mailto:a@b.c", ""},
             Cas{"moi@exemple.fr <prenom.nom+x@ex.org>", ""},
             Cas{"exemple.com, sous.domaine.org! fichier.pdf", ""},
             Cas{"@mention #motcle (@autre)", ""},
             Cas{"/usr/bin ~/doc ./ici ../la C:\\Temp \\\\hote\\part", ""},
             Cas{"nom_de_variable __init__ main()", ""},
             Cas{"слово 日本語 λόγος mot", "mot"},
             Cas{"étudiant·e·s", ""},
             Cas{"fin.Le début", "fin|Le|début"},
         }) {
        EXPECT_EQ(Mots(cas.texte), cas.mots) << cas.texte;
    }
}

TEST(Decoupeur, AWordTooLongToBeOneIsLeftOut) {
    EXPECT_EQ(Mots(QString(80, QLatin1Char('a'))), std::string(80, 'a'));
    EXPECT_EQ(Mots(QString(81, QLatin1Char('a')) + S(" mot")), "mot");
}

TEST(Decoupeur, FillersAndControlsPartWordsAndCountOneUnit) {
    auto const mots = DecoupeEnMots(S("mot\u0007note\u0011fin\u0001x"));
    ASSERT_EQ(mots.size(), 3U);
    EXPECT_EQ(mots[0], (hote::Mot{0, 3}));
    EXPECT_EQ(mots[1], (hote::Mot{4, 8}));
    EXPECT_EQ(mots[2], (hote::Mot{9, 12}));
}

TEST(Decoupeur, ANulIsAControlLikeOthers) {
    EXPECT_EQ(Mots(S("mot") + QChar(0) + S("fin")), "mot|fin");
}

TEST(Decoupeur, ASoftHyphenBelongsToItsWordButNotToItsEnd) {
    QString const texte = S("exem\u00adple fin\u00ad mot-là");
    auto const mots = DecoupeEnMots(texte);
    ASSERT_EQ(mots.size(), 3U);
    EXPECT_EQ(mots[0], (hote::Mot{0, 8}));
    EXPECT_EQ(mots[1], (hote::Mot{9, 12}));
    EXPECT_EQ(DonneForme(texte.mid(mots[0].debut, 8)), S("exemple"));
}

TEST(Decoupeur, CombiningMarksStayWithTheirLetter) {
    QString const texte = S("e\u0301le\u0301phant a\u0300");
    auto const mots = DecoupeEnMots(texte);
    ASSERT_EQ(mots.size(), 1U); // "à" is a single letter
    EXPECT_EQ(mots[0], (hote::Mot{0, 10}));
    EXPECT_EQ(DonneForme(texte.left(10)), S("éléphant"));
}

TEST(Decoupeur, PositionsBehindAPairCountBothItsUnits) {
    auto const mots = DecoupeEnMots(S("😀 mot 😀fin"));
    ASSERT_EQ(mots.size(), 2U);
    EXPECT_EQ(mots[0], (hote::Mot{3, 6}));
    EXPECT_EQ(mots[1], (hote::Mot{9, 12}));
}

TEST(Decoupeur, LettersOutsideTheBasicPlaneAreNotSplit) {
    // Mathematical letters, and Gothic ones: no word of either can be judged, and none is cut.
    EXPECT_EQ(Mots("𝐌𝐨𝐭 𐌰𐌱𐌲 mot"), "𝐌𝐨𝐭|mot");
}

TEST(Decoupeur, ALoneSurrogatePartsWords) {
    EXPECT_EQ(Mots(S("mot") + QChar(0xD83D) + S("fin") + QChar(0xDE00)), "mot|fin");
    EXPECT_EQ(Mots(QString(QChar(0xD83D))), "");
}

TEST(Decoupeur, WordsOfAnyTextAreWholeAndInOrder) {
    static char16_t const unites[] =
        u"aéZ'’-\u2011 \t.@/_\u00ad\u0301\u0007\u200d7·\U0001f600\U0001d400中";
    std::mt19937 hasard(5);
    for (int essai = 0; essai < 20000; ++essai) {
        QString texte;
        for (auto i = hasard() % 30; i > 0; --i) {
            texte += QChar(unites[hasard() % (std::size(unites) - 1)]); // pairs come apart, too
        }
        int fin = 0;
        for (hote::Mot const& mot : DecoupeEnMots(texte)) {
            ASSERT_LE(fin, mot.debut);
            ASSERT_LT(mot.debut, mot.fin);
            ASSERT_LE(mot.fin, texte.size());
            fin = mot.fin;
            ASSERT_FALSE(texte.at(mot.debut).isLowSurrogate());
            ASSERT_FALSE(texte.at(mot.fin - 1).isHighSurrogate());
            ASSERT_FALSE(texte.at(mot.debut).isMark());
            ASSERT_FALSE(mot.fin < texte.size() && texte.at(mot.fin).isMark());
        }
    }
}

TEST(Decoupeur, TheFormAskedForIsComposedWithPlainSigns) {
    EXPECT_EQ(DonneForme(S("L’e\u0301te\u0301")), S("L'été"));
    EXPECT_EQ(DonneForme(S("arc\u2011en\u2010ciel")), S("arc-en-ciel"));
}
