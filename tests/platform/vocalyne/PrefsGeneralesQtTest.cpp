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

    static std::unique_ptr<PrefsGeneralesQt> Ouvre(UniChaine const& chemin) {
        return std::make_unique<PrefsGeneralesQt>(chemin, kPrefsGenDirect, kPrefsGenLecture,
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
    Ouvre(chemin_)->Donne(U("a"), QVariant(), false);
    EXPECT_TRUE(dossier_.Noms().empty());
}

TEST_F(Settings, AnEmptyPathHasNoKeys) {
    EXPECT_EQ(QVariant(3), Ouvre(UniChaine())->Donne(U("a"), QVariant(3), true));
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

TEST_F(Settings, AnUnreadableFileReadsAsHavingNoKeys) {
    dossier_.Ecris("vocalyne.conf", "[g]\na=1\n");
    DossierTemporaire::Interdit const interdit(dossier_.Chemin("vocalyne.conf"));
    auto const prefs = Ouvre(chemin_);
    EXPECT_EQ(QVariant(5), prefs->Donne(U("g/a"), QVariant(5), true));
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

} // namespace
