// SPDX-License-Identifier: MPL-2.0
#include "commun/ErreurHote.h"
#include "langue/DictionnaireHunspell.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cstdlib>

using namespace hote;

namespace {

QString S(char const* utf8) {
    return QString::fromUtf8(utf8);
}

class Dictionnaires : public ::testing::Test {
  protected:
    void Ecris(QString const& nom, QByteArray const& contenu) {
        QFile fichier(dossier_.filePath(nom));
        ASSERT_TRUE(fichier.open(QIODevice::WriteOnly));
        fichier.write(contenu);
    }
    void Pose(QString const& nom, QByteArray const& affixes, QByteArray const& mots) {
        Ecris(nom + S(".aff"), affixes);
        Ecris(nom + S(".dic"), mots);
    }
    std::vector<std::string> Dossiers() const { return {dossier_.path().toStdString()}; }
    std::string Chemin(char const* nom) const { return dossier_.filePath(S(nom)).toStdString(); }

    QTemporaryDir dossier_;
};

} // namespace

TEST_F(Dictionnaires, AMissingDictionaryNamesThePackageToInstall) {
    for (auto const& [langue, paquet] : {std::pair{Langue::Francais, "hunspell-fr"},
                                         std::pair{Langue::Anglais, "hunspell-en-us"}}) {
        try {
            OuvreDictionnaire(langue, Dossiers());
            FAIL() << paquet;
        } catch (ErreurHote const& erreur) {
            EXPECT_EQ(erreur.DonneCode(), kSortieDictionnaire);
            EXPECT_NE(std::string(erreur.what()).find(paquet), std::string::npos);
        }
    }
}

TEST_F(Dictionnaires, ADictionaryHasBothItsFiles) {
    Ecris(S("fr_FR.aff"), "SET UTF-8\n");
    EXPECT_FALSE(LocaliseDictionnaire(Langue::Francais, Dossiers()));
    Ecris(S("fr_FR.dic"), "0\n");
    EXPECT_TRUE(LocaliseDictionnaire(Langue::Francais, Dossiers()));
}

TEST_F(Dictionnaires, TheUsualNamesAreTriedInOrder) {
    Pose(S("fr"), "", "0\n");
    Pose(S("en_GB"), "", "0\n");
    EXPECT_EQ(LocaliseDictionnaire(Langue::Francais, Dossiers())->mots, Chemin("fr.dic"));
    EXPECT_EQ(LocaliseDictionnaire(Langue::Anglais, Dossiers())->mots, Chemin("en_GB.dic"));
    Pose(S("fr_FR"), "", "0\n");
    Pose(S("en_US"), "", "0\n");
    EXPECT_EQ(LocaliseDictionnaire(Langue::Francais, Dossiers())->mots, Chemin("fr_FR.dic"));
    EXPECT_EQ(LocaliseDictionnaire(Langue::Anglais, Dossiers())->mots, Chemin("en_US.dic"));
}

TEST_F(Dictionnaires, TheFoldersOfTheEnvironmentComeFirst) {
    char const* const avant = std::getenv("DICPATH");
    QByteArray const garde(avant);
    setenv("DICPATH", ":/absent::/autre", 1);
    auto const dossiers = DonneDossiersDictionnaires();
    avant == nullptr ? unsetenv("DICPATH") : setenv("DICPATH", garde.constData(), 1);
    ASSERT_GT(dossiers.size(), 2U);
    EXPECT_EQ(dossiers[0], "/absent");
    EXPECT_EQ(dossiers[1], "/autre");
    EXPECT_EQ(dossiers[2], "/usr/share/hunspell");
}

TEST_F(Dictionnaires, WordsGoThroughTheDictionarysOwnEncoding) {
    Pose(S("fr_FR"),
         "SET ISO8859-1\nTRY \xe9"
         "cole\n",
         "1\n\xe9"
         "cole\n");
    auto const lexique = OuvreDictionnaire(Langue::Francais, Dossiers());
    EXPECT_TRUE(lexique->Connait(S("école")));
    EXPECT_FALSE(lexique->Connait(S("ecole")));
    EXPECT_EQ(lexique->Suggere(S("ecole")), QStringList{S("école")});
}

TEST_F(Dictionnaires, AWordThatTheEncodingCannotHoldIsNotKnown) {
    Pose(S("fr_FR"), "SET ISO8859-1\n", "1\n?uvre\n");
    auto const lexique = OuvreDictionnaire(Langue::Francais, Dossiers());
    EXPECT_FALSE(lexique->Connait(S("œuvre")));
    EXPECT_TRUE(lexique->Suggere(S("œuvre")).isEmpty());
}

TEST_F(Dictionnaires, AnEncodingByHunspellsOwnNameIsUnderstood) {
    Pose(S("fr_FR"), "SET microsoft-cp1251\n", "1\nchat\n");
    EXPECT_TRUE(OuvreDictionnaire(Langue::Francais, Dossiers())->Connait(S("chat")));
}

TEST_F(Dictionnaires, AnUnknownEncodingIsTold) {
    Pose(S("fr_FR"), "SET NIMPORTE-1\n", "1\nchat\n");
    EXPECT_THROW(OuvreDictionnaire(Langue::Francais, Dossiers()), ErreurHote);
}

TEST_F(Dictionnaires, TheSystemsDictionariesKnowTheirLanguages) {
    auto const francais = OuvreDictionnaire(Langue::Francais);
    for (char const* mot : {"l'école", "aujourd'hui", "éléphant", "arc-en-ciel", "Œuvre"}) {
        EXPECT_TRUE(francais->Connait(S(mot))) << mot;
    }
    EXPECT_TRUE(francais->Suggere(S("acceuil")).contains(S("accueil")));
    auto const anglais = OuvreDictionnaire(Langue::Anglais);
    EXPECT_TRUE(anglais->Connait(S("don't")));
    EXPECT_TRUE(anglais->Suggere(S("recieve")).contains(S("receive")));
}
