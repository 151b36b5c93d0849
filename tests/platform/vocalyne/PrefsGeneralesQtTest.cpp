// SPDX-License-Identifier: MPL-2.0
#include "PrefsGeneralesQt.h"

#include "outils/DossierTemporaire.h"

#include <QFileInfo>

#include <gtest/gtest.h>

namespace {

char const kCleLangue[] = "Adaptateurs2/preferences/interfaceGenerale/langueAffichage";

UniChaine U(char const* texte) {
    return UniChaine(texte, UniChaine::kCodageUtf8);
}

class Settings : public testing::Test {
  protected:
    Settings() { dossier_.CedeAPersonne(); }

    /// Opens the file; null when nothing is to be written.
    static std::unique_ptr<PrefsGeneralesQt> Ouvre(UniChaine const& chemin,
                                                   ePrefsGenAcces acces = kPrefsGenLecture) {
        return std::make_unique<PrefsGeneralesQt>(chemin, kPrefsGenDirect, acces,
                                                  QSettings::NativeFormat);
    }
    static int Langue(UniChaine const& chemin) {
        return Ouvre(chemin)->Donne(U(kCleLangue), QVariant(0), true).toInt();
    }

    UniChaine Chemin(char const* nom) const {
        return UniChaine(QString::fromStdString(dossier_.Chemin(nom).string()));
    }

    DossierTemporaire dossier_;
    UniChaine const chemin_ = Chemin("vocalyne.conf");
};

TEST_F(Settings, AKeyWithGroupsIsReadFromTheFilesSections) {
    dossier_.Ecris("vocalyne.conf",
                   "[Adaptateurs2]\npreferences\\interfaceGenerale\\langueAffichage=2\n");
    EXPECT_EQ(2, Langue(chemin_));
}

TEST_F(Settings, AMissingKeyReadsAsTheDefault) {
    dossier_.Ecris("vocalyne.conf", "[Adaptateurs2]\nautre=1\n");
    auto const prefs = Ouvre(chemin_);
    EXPECT_EQ(QVariant(7), prefs->Donne(U(kCleLangue), QVariant(7), true));
    EXPECT_EQ(QVariant(8), prefs->Donne(U(kCleLangue), QVariant(8), true));
    EXPECT_FALSE(prefs->Donne(U(kCleLangue), QVariant(), true).isValid());
    EXPECT_EQ(QVariant(9), prefs->Donne(UniChaine(), QVariant(9), true));
}

TEST_F(Settings, ReadingAMissingFileCreatesNothing) {
    EXPECT_EQ(0, Langue(chemin_));
    EXPECT_EQ(0, Langue(Chemin("sous/dossier/vocalyne.conf")));
    Ouvre(chemin_, kPrefsGenLectureEcriture)->Donne(U("a"), QVariant(), false);
    EXPECT_TRUE(dossier_.Noms().empty());
}

TEST_F(Settings, AnEmptyPathHasNoKeysAndCannotBeWritten) {
    auto const prefs = Ouvre(UniChaine(), kPrefsGenLectureEcriture);
    EXPECT_EQ(QVariant(3), prefs->Donne(U("a"), QVariant(3), true));
    EXPECT_TRUE(prefs->Mets(U("a"), QVariant(1)));
    EXPECT_FALSE(prefs->Enregistre());
}

TEST_F(Settings, ADirectoryOrBytesInTheFilesPlaceReadAsHavingNoKeys) {
    EXPECT_EQ(0, Langue(Chemin("")));
    QByteArray octets;
    for (int octet = 0; octet < 20000; ++octet) {
        octets.append(static_cast<char>(octet * 7 + octet / 256));
    }
    dossier_.Ecris("vocalyne.conf", octets.toStdString());
    EXPECT_EQ(0, Langue(chemin_));
}

TEST_F(Settings, AValueThatIsNoNumberReadsAsZero) {
    dossier_.Ecris("vocalyne.conf",
                   "[Adaptateurs2]\npreferences\\interfaceGenerale\\langueAffichage=deux\n");
    EXPECT_EQ(0, Langue(chemin_));
}

TEST_F(Settings, AnUnreadableFileReadsAsHavingNoKeysAndIsNotReplaced) {
    dossier_.Ecris("vocalyne.conf", "[g]\na=1\n");
    DossierTemporaire::Interdit interdit(dossier_.Chemin("vocalyne.conf"));
    auto const prefs = Ouvre(chemin_, kPrefsGenLectureEcriture);
    EXPECT_EQ(QVariant(5), prefs->Donne(U("g/a"), QVariant(5), true));
    EXPECT_TRUE(prefs->Mets(U("g/a"), QVariant(2)));
    EXPECT_FALSE(prefs->Enregistre());
    interdit.Leve();
    EXPECT_EQ("[g]\na=1\n", dossier_.Lis("vocalyne.conf"));
}

TEST_F(Settings, WritingKeepsEveryOtherKey) {
    dossier_.Ecris("vocalyne.conf", "sansGroupe=1\n[Autre]\ncl\\xe9=\\x20ac\nliste=a, b\n"
                                    "[Adaptateurs2]\nx=@ByteArray(ab)\n");
    {
        auto const prefs = Ouvre(chemin_, kPrefsGenLectureEcriture);
        EXPECT_TRUE(prefs->Mets(U(kCleLangue), QVariant(1)));
    }
    auto const prefs = Ouvre(chemin_);
    EXPECT_EQ(1, Langue(chemin_));
    EXPECT_EQ(QStringLiteral("1"), prefs->Donne(U("sansGroupe"), QVariant(), true));
    EXPECT_EQ(QStringList({QStringLiteral("a"), QStringLiteral("b")}),
              prefs->Donne(U("Autre/liste"), QVariant(), true));
    EXPECT_EQ(QByteArray("ab"), prefs->Donne(U("Adaptateurs2/x"), QVariant(), true));
    auto const contenu = dossier_.Lis("vocalyne.conf");
    EXPECT_NE(std::string::npos, contenu.find("20ac")) << contenu;
}

TEST_F(Settings, AFileThatDoesNotParseIsNotRewritten) {
    std::string const contenu = "[g]\na=1\nthis is no setting\n";
    dossier_.Ecris("vocalyne.conf", contenu);
    auto const lecture = Ouvre(chemin_);
    lecture->Donne(U("g/a"), QVariant(), true);
    auto const prefs = Ouvre(chemin_, kPrefsGenLectureEcriture);
    EXPECT_TRUE(prefs->Mets(U("g/b"), QVariant(2)));
    EXPECT_FALSE(prefs->Enregistre());
    EXPECT_EQ(contenu, dossier_.Lis("vocalyne.conf"));
}

TEST_F(Settings, WhatWasSetIsReadBackBeforeItIsWritten) {
    auto const prefs = Ouvre(chemin_, kPrefsGenLectureEcriture);
    EXPECT_TRUE(prefs->Mets(U("g/a"), QVariant(4)));
    EXPECT_EQ(QVariant(4), prefs->Donne(U("g/a"), QVariant(), true));
    EXPECT_EQ(QVariant(4), prefs->Donne(U("g/a"), QVariant(), false));
    EXPECT_TRUE(dossier_.Noms().empty());
    EXPECT_TRUE(prefs->Enregistre());
    EXPECT_FALSE(dossier_.Noms().empty());
    EXPECT_EQ(4, prefs->Donne(U("g/a"), QVariant(), true).toInt());
}

TEST_F(Settings, NothingIsSetWhereTheFileWasOpenedForReading) {
    dossier_.Ecris("vocalyne.conf", "[g]\na=1\n");
    auto const prefs = Ouvre(chemin_);
    EXPECT_FALSE(prefs->Mets(U("g/a"), QVariant(2)));
    EXPECT_TRUE(prefs->Enregistre()); // there is nothing to write
    EXPECT_EQ("[g]\na=1\n", dossier_.Lis("vocalyne.conf"));
}

TEST_F(Settings, AKeptValueStaysAndTheOtherFollowsTheFile) {
    dossier_.Ecris("vocalyne.conf", "[g]\na=1\nb=1\n");
    auto const prefs = Ouvre(chemin_);
    EXPECT_EQ(1, prefs->Donne(U("g/a"), QVariant(), true).toInt());
    EXPECT_EQ(1, prefs->Donne(U("g/b"), QVariant(), false).toInt());
    dossier_.Ecris("vocalyne.conf", "[g]\na=20\nb=20\n");
    EXPECT_EQ(1, prefs->Donne(U("g/a"), QVariant(), true).toInt());
    EXPECT_EQ(20, prefs->Donne(U("g/b"), QVariant(), true).toInt());
    EXPECT_EQ(20, prefs->Donne(U("g/a"), QVariant(), false).toInt());
}

TEST_F(Settings, WhatAnotherProcessWroteMeanwhileIsKept) {
    dossier_.Ecris("vocalyne.conf", "[g]\na=1\n");
    auto const prefs = Ouvre(chemin_, kPrefsGenLectureEcriture);
    EXPECT_EQ(1, prefs->Donne(U("g/a"), QVariant(), true).toInt());
    EXPECT_TRUE(prefs->Mets(U("g/b"), QVariant(2)));
    dossier_.Ecris("vocalyne.conf", "[g]\na=30\nc=300\n");
    EXPECT_TRUE(prefs->Enregistre());
    auto const relu = Ouvre(chemin_);
    EXPECT_EQ(30, relu->Donne(U("g/a"), QVariant(), true).toInt());
    EXPECT_EQ(2, relu->Donne(U("g/b"), QVariant(), true).toInt());
    EXPECT_EQ(300, relu->Donne(U("g/c"), QVariant(), true).toInt());
}

TEST_F(Settings, APlaceThatCannotBeWrittenIsReported) {
    dossier_.Ecris("fichier", "x");
    auto const prefs = Ouvre(Chemin("fichier/vocalyne.conf"), kPrefsGenLectureEcriture);
    EXPECT_TRUE(prefs->Mets(U("g/a"), QVariant(1)));
    EXPECT_FALSE(prefs->Enregistre());
    EXPECT_EQ("x", dossier_.Lis("fichier"));
}

} // namespace
