// SPDX-License-Identifier: MPL-2.0
#include "ImageCommune.h"
#include "RoutinesGeneralesQt.h"
#include "outils/DossierTemporaire.h"

#include <QDir>
#include <QIcon>
#include <QImage>

#include <gtest/gtest.h>

namespace {

QPixmap Carre(int cote, Qt::GlobalColor couleur) {
    QPixmap image(cote, cote);
    image.fill(couleur);
    return image;
}

QIcon Icone(QString const& chemin) {
    return RoutinesGeneralesQt::DonneIconDeApplication(UniChemin(UniChaine(chemin)));
}

QRgb Couleur(QIcon const& icone, int cote) {
    return icone.pixmap(cote).toImage().pixel(0, 0);
}

TEST(CommonImage, HoldsNothingUntilItTakesAnImage) {
    ImageCommune image;
    EXPECT_TRUE(image.EstVide());
    EXPECT_TRUE(image.DonnePixmap().isNull());
    image.Prends(Carre(8, Qt::red));
    EXPECT_FALSE(image.EstVide());
    EXPECT_EQ(QSize(8, 8), image.DonnePixmap().size());
}

TEST(CommonImage, TheImageTakenLastIsTheOneHeld) {
    ImageCommune image;
    image.Prends(Carre(8, Qt::red));
    image.Prends(Carre(4, Qt::blue));
    EXPECT_EQ(QSize(4, 4), image.DonnePixmap().size());
    image.Prends(QPixmap());
    EXPECT_TRUE(image.EstVide());
}

class ApplicationIcon : public testing::Test {
  protected:
    /// An icon theme of one icon, in place of the system's.
    void MetsTheme() const {
        QDir(Chemin("")).mkpath(QStringLiteral("essai/16x16/apps"));
        dossier_.Ecris("essai/index.theme",
                       "[Icon Theme]\nName=essai\nDirectories=16x16/apps\n"
                       "[16x16/apps]\nSize=16\nContext=Applications\nType=Fixed\n");
        ASSERT_TRUE(Carre(16, Qt::green).save(Chemin("essai/16x16/apps/soffice.png")));
        QIcon::setThemeSearchPaths({Chemin("")});
        QIcon::setThemeName(QStringLiteral("essai"));
    }

    QString Chemin(char const* nom) const {
        return QString::fromStdString(dossier_.Chemin(nom).string());
    }

    DossierTemporaire dossier_;
};

TEST_F(ApplicationIcon, WithoutAPathThereIsNone) {
    EXPECT_TRUE(RoutinesGeneralesQt::DonneIconDeApplication(UniChemin()).isNull());
}

TEST_F(ApplicationIcon, AnImageFileIsItsOwnIcon) {
    ASSERT_TRUE(Carre(24, Qt::red).save(Chemin("été 😀.png")));
    auto const icone = Icone(Chemin("été 😀.png"));
    ASSERT_FALSE(icone.isNull());
    ASSERT_FALSE(icone.availableSizes().isEmpty());
    EXPECT_EQ(QSize(24, 24), icone.availableSizes().constFirst());
    EXPECT_EQ(qRgb(255, 0, 0), Couleur(icone, 24));
}

TEST_F(ApplicationIcon, AProgramHasTheThemesIconOfItsName) {
    MetsTheme();
    for (auto const* programme : {"soffice.bin", "soffice"}) {
        dossier_.Ecris(programme, "\x7F"
                                  "ELF");
        auto const icone = Icone(Chemin(programme));
        ASSERT_FALSE(icone.isNull()) << programme;
        EXPECT_EQ(QSize(16, 16), icone.availableSizes().constFirst());
        EXPECT_EQ(qRgb(0, 255, 0), Couleur(icone, 16));
    }
    EXPECT_FALSE(Icone(QStringLiteral("/nowhere/soffice")).isNull());
}

TEST_F(ApplicationIcon, AnUnknownProgramAndAFolderHaveNone) {
    MetsTheme();
    EXPECT_TRUE(Icone(QStringLiteral("/nowhere/no-such-program")).isNull());
    EXPECT_TRUE(Icone(Chemin("")).isNull());
    EXPECT_TRUE(Icone(QStringLiteral("/")).isNull());
}

} // namespace
