// SPDX-License-Identifier: MPL-2.0
#include "console/LigneDeCommande.h"
#include "commun/ErreurHote.h"

#include <gtest/gtest.h>

using namespace hote;

namespace {

OptionsHote Lis(QStringList arguments) {
    arguments.prepend(QStringLiteral("vocalyne-hote"));
    return AnalyseLigne(arguments);
}

OptionsHote Lis(char const* arguments) {
    return Lis(QString::fromUtf8(arguments).split(QLatin1Char(' '), Qt::SkipEmptyParts));
}

} // namespace

TEST(LigneDeCommande, CommandsHaveTheirDefaults) {
    OptionsHote const options = Lis("corrige");
    EXPECT_EQ(options.commande, OptionsHote::Commande::Corrige);
    EXPECT_TRUE(options.id.isEmpty());
    EXPECT_FALSE(options.langue);
    EXPECT_FALSE(options.automatique);
    EXPECT_FALSE(options.json);
    EXPECT_TRUE(options.greffon.empty());
    EXPECT_EQ(Lis("documents").commande, OptionsHote::Commande::Documents);
    EXPECT_EQ(Lis("pilote").commande, OptionsHote::Commande::Pilote);
}

TEST(LigneDeCommande, OptionsStandBeforeOrBehindTheDocumentInEitherForm) {
    for (char const* ligne :
         {"corrige A~1 --langue en --automatique --sortie json --greffon g.so",
          "corrige --sortie=json --langue=en --greffon=g.so --automatique A~1"}) {
        OptionsHote const options = Lis(ligne);
        EXPECT_EQ(options.id, QStringLiteral("A~1"));
        EXPECT_EQ(options.langue, Langue::Anglais);
        EXPECT_TRUE(options.automatique);
        EXPECT_TRUE(options.json);
        EXPECT_EQ(options.greffon, "g.so");
    }
}

TEST(LigneDeCommande, TheDictionaryTakesTheOptionsOfAWorkThatChangesNothingByItself) {
    OptionsHote const options = Lis("dictionnaire A~1 --langue fr --sortie json --greffon g.so");
    EXPECT_EQ(options.commande, OptionsHote::Commande::Dictionnaire);
    EXPECT_EQ(options.id, QStringLiteral("A~1"));
    EXPECT_EQ(options.langue, Langue::Francais);
    EXPECT_TRUE(options.json);
    EXPECT_EQ(options.greffon, "g.so");
}

TEST(LigneDeCommande, TheLastOfSeveralWins) {
    EXPECT_EQ(Lis("corrige --langue en --langue fr").langue, Langue::Francais);
    EXPECT_FALSE(Lis("documents --sortie json --sortie texte").json);
}

TEST(LigneDeCommande, HelpAndVersionStandAnywhere) {
    for (char const* ligne : {"--help", "-h", "corrige --help", "documents -h"}) {
        EXPECT_EQ(Lis(ligne).commande, OptionsHote::Commande::Aide) << ligne;
    }
    for (char const* ligne : {"--version", "pilote --version"}) {
        EXPECT_EQ(Lis(ligne).commande, OptionsHote::Commande::Version) << ligne;
    }
}

TEST(LigneDeCommande, AFilesNameKeepsItsLetters) {
    EXPECT_EQ(Lis("pilote --greffon é\U0001f600.so").greffon, "é\U0001f600.so");
}

TEST(LigneDeCommande, WhatIsWrongIsAnErrorOfUsage) {
    for (char const* ligne :
         {"", "inconnue", "--", "-", "--rien", "documents x", "documents --langue fr",
          "documents --automatique", "documents --greffon g", "corrige a b", "corrige --langue",
          "corrige --langue FR", "corrige --sortie xml", "pilote --sortie json", "pilote x",
          "dictionnaire --automatique", "dictionnaire a b"}) {
        try {
            Lis(ligne);
            ADD_FAILURE() << ligne;
        } catch (ErreurHote const& erreur) {
            EXPECT_EQ(erreur.DonneCode(), kSortieUsage) << ligne;
            EXPECT_FALSE(std::string(erreur.what()).empty());
        }
    }
}
