// SPDX-License-Identifier: MPL-2.0
#include "commun/ErreurHote.h"
#include "langue/ThesaurusMyThes.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace hote;

namespace {

QString S(char const* utf8) {
    return QString::fromUtf8(utf8);
}

class Synonymes : public ::testing::Test {
  protected:
    void Ecris(char const* nom, QByteArray const& contenu) {
        QFile fichier(dossier_.filePath(S(nom)));
        ASSERT_TRUE(fichier.open(QIODevice::WriteOnly));
        fichier.write(contenu);
    }
    std::unique_ptr<Thesaurus> Ouvre() {
        return OuvreThesaurus(Langue::Francais, {dossier_.path().toStdString()});
    }

    QTemporaryDir dossier_;
};

} // namespace

TEST_F(Synonymes, MissingOnesNameThePackageToInstall) {
    for (auto const& [langue, paquet] :
         {std::pair{Langue::Francais, "mythes-fr"}, std::pair{Langue::Anglais, "mythes-en-us"}}) {
        try {
            OuvreThesaurus(langue, {dossier_.path().toStdString()});
            FAIL() << paquet;
        } catch (ErreurHote const& erreur) {
            EXPECT_EQ(erreur.DonneCode(), kSortieDictionnaire);
            EXPECT_NE(std::string(erreur.what()).find(paquet), std::string::npos);
        }
    }
}

TEST_F(Synonymes, MeaningsAndNotesAreReadInTheDictionarysOwnEncoding) {
    QByteArray const donnees = "ISO8859-1\n\xe9"
                               "cole|2\n(Nom)|coll\xe8ge|grange (contraire)\n(Nom)|(secte)|style\n";
    Ecris("th_fr_FR_v2.dat", donnees);
    Ecris("th_fr_FR_v2.idx", "ISO8859-1\n1\n\xe9"
                             "cole|10\n");
    auto const sens = Ouvre()->Cherche(S("école"));
    ASSERT_EQ(sens.size(), 2U);
    EXPECT_EQ(sens[0].genre, S("Nom"));
    ASSERT_EQ(sens[0].synonymes.size(), 2U);
    EXPECT_EQ(sens[0].synonymes[0].mot, S("collège"));
    EXPECT_EQ(sens[0].synonymes[0].note, S(""));
    EXPECT_EQ(sens[0].synonymes[1].mot, S("grange"));
    EXPECT_EQ(sens[0].synonymes[1].note, S("contraire"));
    EXPECT_EQ(sens[1].synonymes[0].mot, S("(secte)"));
}

TEST_F(Synonymes, WhatADictionaryRepeatsInOneMeaningIsToldOnce) {
    Ecris("thes_fr.dat", "UTF-8\nchat|1\n(Nom)|félin|matou|félin|félin (sens proche)\n");
    Ecris("thes_fr.idx", "UTF-8\n1\nchat|6\n");
    auto const sens = Ouvre()->Cherche(S("chat"));
    ASSERT_EQ(sens.size(), 1U);
    QStringList mots;
    for (Synonyme const& synonyme : sens[0].synonymes) {
        mots.append(synonyme.mot);
    }
    EXPECT_EQ(mots, (QStringList{S("félin"), S("matou"), S("félin")}));
}

TEST_F(Synonymes, FilesThatAreSomethingElseAreTold) {
    for (QByteArray const& contenu : {QByteArray(), QByteArray("\x7f"
                                                               "ELF\0\0",
                                                               6)}) {
        Ecris("thes_fr.idx", contenu);
        Ecris("thes_fr.dat", contenu);
        EXPECT_THROW(Ouvre(), ErreurHote);
    }
}

TEST_F(Synonymes, AnEntryThatNoneCanBeIsNotFound) {
    Ecris("thes_fr.dat", "UTF-8\nchat|1\n(Nom)|félin\n");
    Ecris("thes_fr.idx", "UTF-8\n1\nchat|6\n");
    auto const thesaurus = Ouvre();
    EXPECT_EQ(thesaurus->Cherche(S("chat")).size(), 1U);
    for (QString const& mot : {S(""), S("chien"), QString(100000, QLatin1Char('a')),
                               QString(S("chat") + QChar(0) + S("x")), QString(QChar(0xd800))}) {
        EXPECT_TRUE(thesaurus->Cherche(mot).empty()) << mot.size();
    }
}

TEST_F(Synonymes, TheSystemsDictionariesKnowTheirLanguages) {
    EXPECT_FALSE(OuvreThesaurus(Langue::Francais)->Cherche(S("chat")).empty());
    EXPECT_FALSE(OuvreThesaurus(Langue::Anglais)->Cherche(S("cat")).empty());
}
