// SPDX-License-Identifier: MPL-2.0
#include "Enfant.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

TEST(Loading, AConnectorComesAndGoesAHundredTimesInAHostWithoutQt) {
    QTemporaryDir const dossier;
    ASSERT_TRUE(dossier.isValid());
    auto const enfant = Lance(
        QStringLiteral(CHEMIN_SONDE_CHARGEMENT), {QStringLiteral(CHEMIN_CONNECTEUR_FEINT)},
        {{QStringLiteral("FICHIER_REGLAGES"), dossier.filePath(QStringLiteral("vocalyne.conf"))}});
    EXPECT_TRUE(enfant.termineSeul) << enfant.erreurs.toStdString();
    EXPECT_EQ(0, enfant.code) << enfant.erreurs.toStdString();
    EXPECT_EQ(QStringLiteral("100"), enfant["charges"]);
    EXPECT_EQ(QStringLiteral("0"), enfant["restes"]);    // it was truly unloaded each time
    EXPECT_EQ(QStringLiteral("restee"), enfant["hote"]); // and Qt with it
    EXPECT_EQ(QStringLiteral("atteinte"), enfant["fin"]);
}

} // namespace
