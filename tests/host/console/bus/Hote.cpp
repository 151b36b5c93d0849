// SPDX-License-Identifier: MPL-2.0
#include "Hote.h"

#include "outils/DossierTemporaire.h"
#include "outils/bus/Processus.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QProcess>
#include <QTimer>

#include <gtest/gtest.h>

#include <memory>

namespace {

/// Events need an application object; whoever comes first makes it.
void AssureApplication() {
    static int argc = 1;
    static char nom[] = "test";
    static char* argv[] = {nom, nullptr};
    if (QCoreApplication::instance() == nullptr) {
        static QCoreApplication const application(argc, argv);
    }
}

QProcessEnvironment DonneEnvironnement(DossierTemporaire const& maison) {
    auto environnement = QProcessEnvironment::systemEnvironment();
    for (char const* nom :
         {"LC_ALL", "LC_MESSAGES", "VOCALYNE_GREFFON", "DISPLAY", "WAYLAND_DISPLAY"}) {
        environnement.remove(QLatin1String(nom));
    }
    environnement.insert(QStringLiteral("HOME"), Q(maison.Chemin().string()));
    environnement.insert(QStringLiteral("LANG"), QStringLiteral("C.UTF-8"));
    // No engine outside the host: what they find is not the matter here.
    environnement.insert(QStringLiteral("VOCALYNE_MOTEURS"), QString());
    return environnement;
}

} // namespace

Fin LanceHote(QStringList const& arguments, QByteArray const& entree) {
    AssureApplication();
    DossierTemporaire const maison;
    QProcess hote;
    hote.setProcessEnvironment(DonneEnvironnement(maison));
    QEventLoop boucle;
    QObject::connect(&hote, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), &boucle,
                     &QEventLoop::quit);
    QTimer garde;
    garde.setSingleShot(true);
    QObject::connect(&garde, &QTimer::timeout, &boucle, &QEventLoop::quit);
    garde.start(Processus::kDelaiMs);
    hote.start(QStringLiteral(CHEMIN_HOTE), arguments);
    hote.write(entree);
    hote.closeWriteChannel();
    boucle.exec();
    if (hote.state() != QProcess::NotRunning) {
        hote.kill();
        hote.waitForFinished(-1);
        ADD_FAILURE() << "vocalyne-hote did not end";
    }
    Fin fin{hote.exitCode(), hote.readAllStandardOutput(), hote.readAllStandardError()};
    EXPECT_EQ(hote.exitStatus(), QProcess::NormalExit) << fin.erreurs.toStdString();
    EXPECT_FALSE(fin.erreurs.contains("Sanitizer")) << fin.erreurs.toStdString();
    EXPECT_FALSE(fin.erreurs.contains("runtime error")) << fin.erreurs.toStdString();
    return fin;
}

std::vector<QJsonObject> Dialogue(std::vector<QJsonObject> const& requetes) {
    QByteArray entree;
    for (QJsonObject const& requete : requetes) {
        entree += QJsonDocument(requete).toJson(QJsonDocument::Compact) + '\n';
    }
    Fin const fin = LanceHote({QStringLiteral("pilote")}, entree);
    EXPECT_EQ(fin.code, 0) << fin.erreurs.toStdString();
    std::vector<QJsonObject> reponses;
    for (QByteArray const& ligne : fin.sortie.split('\n')) {
        if (!ligne.isEmpty()) {
            reponses.push_back(QJsonDocument::fromJson(ligne).object());
        }
    }
    EXPECT_EQ(reponses.size(), requetes.size());
    reponses.resize(requetes.size());
    return reponses;
}
