// SPDX-License-Identifier: MPL-2.0
#include "Enfant.h"
#include "ServeurXFeint.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

QString const kSonde = QStringLiteral(CHEMIN_SONDE_APPLICATION);

/// The probe came to its end with an application on this platform, and touched nothing of the
/// host's on its way.
void VerifiePlateforme(Enfant const& enfant, char const* plateforme) {
    auto const erreurs = enfant.erreurs.toStdString();
    EXPECT_TRUE(enfant.termineSeul) << erreurs;
    EXPECT_EQ(0, enfant.code) << erreurs;
    EXPECT_EQ(QString::fromLatin1(plateforme), enfant["plateforme"]) << erreurs;
    EXPECT_EQ(QStringLiteral("QApplication"), enfant["classe"]);
    EXPECT_EQ(QStringLiteral("meme"), enfant["deuxieme"]);
    EXPECT_EQ(QStringLiteral("meme"), enfant["environnement"]);
    EXPECT_EQ(QStringLiteral("meme"), enfant["locale"]);
    EXPECT_EQ(QStringLiteral("atteinte"), enfant["fin"]);
}

Enfant LanceAvec(std::map<QString, QString> const& variables) {
    return Lance(kSonde, {}, variables);
}

TEST(InitQApplication, WithoutADisplayTheApplicationRunsOffscreen) {
    VerifiePlateforme(LanceAvec({}), "offscreen");
    VerifiePlateforme(LanceAvec({{QStringLiteral("DISPLAY"), QString()}}), "offscreen");
}

TEST(InitQApplication, WithADisplayThatIsDeadTheApplicationRunsOffscreen) {
    VerifiePlateforme(LanceAvec({{QStringLiteral("DISPLAY"), QStringLiteral(":65123")}}),
                      "offscreen");
    VerifiePlateforme(LanceAvec({{QStringLiteral("DISPLAY"), QStringLiteral("not a display")}}),
                      "offscreen");
}

TEST(InitQApplication, WithADisplayThatRefusesTheApplicationRunsOffscreen) {
    // The X protocol's refusal: failed, 4 bytes of reason, version 11.0, 1 word in all.
    ServeurXFeint const serveur(QByteArray("\0\4\13\0\0\0\1\0nope", 12));
    VerifiePlateforme(LanceAvec({{QStringLiteral("DISPLAY"), serveur.DonneAffichage()}}),
                      "offscreen");
    EXPECT_GT(serveur.DonneConnexions(), 0);
}

TEST(InitQApplication, WithADisplayThatHangsUpTheApplicationRunsOffscreen) {
    ServeurXFeint const serveur{QByteArray()};
    VerifiePlateforme(LanceAvec({{QStringLiteral("DISPLAY"), serveur.DonneAffichage()}}),
                      "offscreen");
    EXPECT_GT(serveur.DonneConnexions(), 0);
}

TEST(InitQApplication, WithAWaylandDisplayThatIsDeadTheApplicationRunsOffscreen) {
    VerifiePlateforme(
        LanceAvec({{QStringLiteral("WAYLAND_DISPLAY"), QStringLiteral("wayland-nowhere")}}),
        "offscreen");
}

TEST(InitQApplication, APlatformThatIsAskedForComesFirst) {
    VerifiePlateforme(LanceAvec({{QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("minimal")}}),
                      "minimal");
}

TEST(InitQApplication, APlatformThatCannotComeUpEndsNothing) {
    for (auto const* plateforme : {"no-such-platform", "xcb", "eglfs", "MinimalEGL:x=1", " ", ";;",
                                   "eglfs;no-such-platform"}) {
        SCOPED_TRACE(plateforme);
        VerifiePlateforme(
            LanceAvec({{QStringLiteral("QT_QPA_PLATFORM"), QString::fromLatin1(plateforme)}}),
            "offscreen");
    }
}

TEST(InitQApplication, AThemeThatNeedsADisplayEndsNothingWhereThereIsNone) {
    std::map<QString, QString> variables{
        {QStringLiteral("QT_PLUGIN_PATH"), QStringLiteral(DOSSIER_GREFFONS_QT)},
        {QStringLiteral("QT_QPA_PLATFORMTHEME"), QStringLiteral("quitermine")}};
    VerifiePlateforme(LanceAvec(variables), "offscreen");
    variables[QStringLiteral("DISPLAY")] = QStringLiteral(":65123");
    VerifiePlateforme(LanceAvec(variables), "offscreen");
}

TEST(InitQApplication, WhereQtHasNoPlatformAtAllACoreApplicationIsMade) {
    QTemporaryDir dossier;
    ASSERT_TRUE(dossier.isValid());
    auto const copie = dossier.filePath(QStringLiteral("sonde"));
    ASSERT_TRUE(QFile::copy(kSonde, copie));
    QFile conf(dossier.filePath(QStringLiteral("qt.conf")));
    ASSERT_TRUE(conf.open(QIODevice::WriteOnly));
    conf.write("[Paths]\nPlugins=/nonexistent\n");
    conf.close();

    auto const enfant =
        Lance(copie, {}, {{QStringLiteral("LD_LIBRARY_PATH"), QStringLiteral(DOSSIER_LIB)}});
    EXPECT_TRUE(enfant.termineSeul) << enfant.erreurs.toStdString();
    EXPECT_EQ(QStringLiteral("QCoreApplication"), enfant["classe"]);
    EXPECT_EQ(QStringLiteral("atteinte"), enfant["fin"]);
}

TEST(InitQApplication, AnApplicationThatIsThereStays) {
    auto const enfant = Lance(kSonde, {QStringLiteral("avec-application")});
    EXPECT_TRUE(enfant.termineSeul) << enfant.erreurs.toStdString();
    EXPECT_EQ(QStringLiteral("gardee"), enfant["ancienne"]);
    EXPECT_EQ(QStringLiteral("QCoreApplication"), enfant["classe"]);
}

TEST(InitQApplication, TheHostsLocaleStaysWhileFileNamesFollowThePersons) {
    auto const enfant = LanceAvec({{QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8")}});
    VerifiePlateforme(enfant, "offscreen");
    EXPECT_EQ(QStringLiteral("1.5"), enfant["nombre"]);
    EXPECT_EQ(QStringLiteral("c3a974c3a9"), enfant["fichier"]);
}

} // namespace
