// SPDX-License-Identifier: MPL-2.0
#include "reglages/ReglagesHote.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace hote;

namespace {

QString S(char const* utf8) {
    return QString::fromUtf8(utf8);
}

class ReglagesDUnePersonne : public ::testing::Test {
  protected:
    ReglagesHote& Nouveaux() {
        reglages_ = std::make_unique<ReglagesHote>(dossier_.path());
        reglages_->Charge();
        return *reglages_;
    }
    void Ecris(char const* nom, QByteArray const& contenu) const {
        QFile fichier(dossier_.filePath(S(nom)));
        QDir().mkpath(QFileInfo(fichier).path());
        ASSERT_TRUE(fichier.open(QIODevice::WriteOnly));
        fichier.write(contenu);
    }
    QByteArray Lis(char const* nom) const {
        QFile fichier(dossier_.filePath(S(nom)));
        return fichier.open(QIODevice::ReadOnly) ? fichier.readAll() : QByteArray();
    }

    QTemporaryDir dossier_;
    std::unique_ptr<ReglagesHote> reglages_;
};

} // namespace

TEST_F(ReglagesDUnePersonne, AreKept) {
    Nouveaux().MetsLangue(S("en"));
    reglages_->EteinsMoteur(S("harper"), true);
    reglages_->EteinsRegle(S("grammalecte"), S("règle"), true);
    reglages_->EteinsRegle(S("grammalecte"), S("autre"), true);
    reglages_->EteinsRegle(S("grammalecte"), S("autre"), false);
    reglages_->MetsAdresse(S("languagetool"), S("http://localhost:8081"));
    reglages_->IgnoreMot(S("truc"), S("file:///a/b%20c.odt"));
    Nouveaux();
    EXPECT_EQ(reglages_->DonneLangue(), S("en"));
    EXPECT_TRUE(reglages_->EstMoteurEteint(S("harper")));
    EXPECT_TRUE(reglages_->EstRegleEteinte(S("grammalecte"), S("règle")));
    EXPECT_EQ(reglages_->DonneReglesEteintes(), QStringList(S("grammalecte/règle")));
    EXPECT_EQ(reglages_->DonneAdresse(S("languagetool")), S("http://localhost:8081"));
    EXPECT_TRUE(reglages_->EstIgnore(S("truc"), S("file:///a/b%20c.odt")));
    EXPECT_FALSE(reglages_->EstIgnore(S("truc"), S("file:///autre.odt")));
}

TEST_F(ReglagesDUnePersonne, AcceptedWordsStandOneALineInAFileForEachLanguage) {
    Nouveaux().AccepteMot(S("zèbrer"), S("fr-CA"));
    reglages_->AccepteMot(S("Abc"), S("fr"));
    EXPECT_EQ(Lis("mots/fr.txt"), QByteArray("Abc\nzèbrer\n"));
    Nouveaux();
    EXPECT_TRUE(reglages_->EstAccepte(S("zèbrer"), S("fr")));
    EXPECT_TRUE(reglages_->EstAccepte(S("Zèbrer"), S("fr-FR")));
    EXPECT_FALSE(reglages_->EstAccepte(S("abc"), S("fr")));
    EXPECT_FALSE(reglages_->EstAccepte(S("zèbrer"), S("en")));
    reglages_->OublieMot(S("Abc"), S("fr"));
    EXPECT_EQ(Nouveaux().DonneMots(S("fr")), QStringList(S("zèbrer")));
}

TEST_F(ReglagesDUnePersonne, WordsThatAnotherProgramAddedMeanwhileAreKept) {
    Nouveaux();
    Ecris("mots/fr.txt", "un\n# remarque\n\n deux \n");
    reglages_->AccepteMot(S("trois"), S("fr"));
    EXPECT_EQ(Lis("mots/fr.txt"), QByteArray("deux\ntrois\nun\n"));
}

TEST_F(ReglagesDUnePersonne, TheOfficesOwnWordsAreAccepted) {
    Ecris("bureau/standard.dic", "OOoUserDict1\nlang: <none>\ntype: positive\n---\nKowalczyk\n"
                                 "cé=sure==exemple\n");
    Ecris("bureau/fr.dic", "OOoUserDict1\nlang: fr-FR\ntype: positive\n---\nmachinchose\n");
    Ecris("bureau/non.dic", "OOoUserDict1\nlang: fr-FR\ntype: negative\n---\ninterdit\n");
    Ecris("bureau/vieux.dic", "WBSWG6\x01\x02---\nbinaire\n");
    Nouveaux().LisDictionnairesDuBureau(dossier_.filePath(S("bureau")));
    EXPECT_TRUE(reglages_->EstAccepte(S("Kowalczyk"), S("en")));
    EXPECT_TRUE(reglages_->EstAccepte(S("césure"), S("fr")));
    EXPECT_TRUE(reglages_->EstAccepte(S("machinchose"), S("fr")));
    EXPECT_FALSE(reglages_->EstAccepte(S("machinchose"), S("en")));
    EXPECT_FALSE(reglages_->EstAccepte(S("interdit"), S("fr")));
    EXPECT_FALSE(reglages_->EstAccepte(S("binaire"), S("fr")));
}

TEST_F(ReglagesDUnePersonne, AFileThatIsNoneCountsAsNotChosen) {
    Ecris("hote.conf", QByteArray("\x00\xff[[[\n=\n%%", 11));
    EXPECT_EQ(Nouveaux().DonneLangue(), QString());
}

TEST(ReglagesHote, WithoutAFolderAreInMemoryAlone) {
    ReglagesHote reglages{QString()};
    reglages.Charge();
    reglages.AccepteMot(S("truc"), S("fr"));
    EXPECT_TRUE(reglages.EstAccepte(S("truc"), S("fr")));
}
