// SPDX-License-Identifier: MPL-2.0
#include "BancDeFenetre.h"

#include <QAccessible>

namespace hote {
namespace {

using Accessibilite = BancDeFenetre;

TEST_F(Accessibilite, EveryControlThatTakesTheKeyboardHasAName) {
    Ouvre({Q("xa")});
    int controles = 0;
    for (int page = 0; page < fenetre->count(); ++page) {
        for (QWidget* const enfant : fenetre->widget(page)->findChildren<QWidget*>()) {
            bool const interne = enfant->objectName().startsWith(QLatin1String("qt_"));
            if (enfant->focusPolicy() == Qt::NoFocus || interne) {
                continue;
            }
            ++controles;
            QAccessibleInterface* const interface = QAccessible::queryAccessibleInterface(enfant);
            ASSERT_NE(interface, nullptr);
            EXPECT_FALSE(interface->text(QAccessible::Name).isEmpty())
                << enfant->metaObject()->className();
        }
    }
    EXPECT_GT(controles, 20);
}

TEST_F(Accessibilite, NamesDoNotHoldKeysAndDescriptionsSayWhatAButtonDoes) {
    for (QPushButton const* const bouton : fenetre->findChildren<QPushButton*>()) {
        EXPECT_FALSE(bouton->accessibleName().contains(QLatin1Char('(')));
    }
    EXPECT_FALSE(Trouve<QPushButton>(Q("Ignorer"))->accessibleDescription().isEmpty());
    EXPECT_EQ(Trouve<QPushButton>(Q("Ignorer"))->shortcut(), QKeySequence(Qt::Key_I));
}

TEST_F(Accessibilite, TheMistakeIsMarkedInThePalettesColoursAndNotByThemAlone) {
    Ouvre({Q("xa")});
    QPalette sombre = fenetre->palette();
    sombre.setColor(QPalette::Highlight, Qt::darkGreen);
    sombre.setColor(QPalette::HighlightedText, Qt::yellow);
    fenetre->setPalette(sombre);
    auto const marque = Trouve<VueDePhrase>(Q("Phrase"))->extraSelections().value(0);
    EXPECT_EQ(marque.format.background().color(), QColor(Qt::darkGreen));
    EXPECT_EQ(marque.format.foreground().color(), QColor(Qt::yellow));
    EXPECT_TRUE(marque.format.fontUnderline());
}

TEST_F(Accessibilite, EverythingIsDarkWhereTheDesktopIs) {
    Ouvre({Q("Voici xa.")});
    QPalette const avant = QApplication::palette();
    QPalette sombre(QColor(40, 40, 40));
    sombre.setColor(QPalette::Base, QColor(30, 30, 30));
    QApplication::setPalette(sombre);
    QTRY_VERIFY_WITH_TIMEOUT(fenetre->palette().color(QPalette::Window) == QColor(40, 40, 40),
                             5000);
    QImage const image = fenetre->grab().toImage();
    QString const dossier = qEnvironmentVariable("VOCALYNE_IMAGES");
    if (!dossier.isEmpty()) { // for people to look at
        image.save(dossier + QStringLiteral("/fenetre-sombre.png"));
    }
    QApplication::setPalette(avant);
    int clairs = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            clairs += image.pixelColor(x, y).lightness() > 128 ? 1 : 0;
        }
    }
    EXPECT_GT(clairs, 0); // the letters
    EXPECT_LT(clairs, image.width() * image.height() / 10);
}

TEST_F(Accessibilite, LettersOfTwiceTheSizeStillFitASmallScreen) {
    QFont const avant = QApplication::font();
    QFont grande = avant;
    grande.setPointSizeF(avant.pointSizeF() * 2);
    QApplication::setFont(grande);
    FenetrePrincipale const agrandie(revue, reglages, {Q("essai")});
    QSize const besoin = agrandie.minimumSizeHint();
    QApplication::setFont(avant);
    EXPECT_LE(besoin.width(), 1280);
    EXPECT_LE(besoin.height(), 1024);
}

} // namespace
} // namespace hote
