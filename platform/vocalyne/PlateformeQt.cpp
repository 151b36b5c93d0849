// SPDX-License-Identifier: MPL-2.0
#include "PlateformeQt.h"

#include "AffichageX.h"

#include <QCoreApplication>
#include <QPluginLoader>
#include <QStringList>

#include <algorithm>

namespace {

constexpr char kHorsEcran[] = "offscreen";

/// Platforms that call the process's end themselves when they do not find the hardware they want.
bool TermineLeProcessus(QByteArray const& plateforme) {
    auto const nom = plateforme.split(':').constFirst().trimmed().toLower();
    return nom == "eglfs" || nom == "minimalegl";
}

QByteArrayList DonnePlateformes(bool affichageRepond) {
    QByteArrayList plateformes;
    auto const demandees = qgetenv("QT_QPA_PLATFORM");
    if (!demandees.isEmpty()) {
        plateformes = demandees.split(';');
        plateformes.erase(std::remove_if(plateformes.begin(), plateformes.end(),
                                         [](QByteArray const& p) {
                                             return p.trimmed().isEmpty() || TermineLeProcessus(p);
                                         }),
                          plateformes.end());
    } else {
        if (affichageRepond) {
            plateformes.append("xcb");
        }
        if (!qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) {
            plateformes.append("wayland");
        }
    }
    plateformes.append(kHorsEcran);
    return plateformes;
}

} // namespace

QByteArrayList PlateformeQt::DonneArguments() {
    bool const affichageRepond = AffichageXRepond();
    QByteArrayList arguments{"-platform", DonnePlateformes(affichageRepond).join(';')};
    // The GTK theme, which the environment may name, exits when it cannot open the display.
    if (!affichageRepond) {
        arguments << "-platformtheme" << kHorsEcran;
    }
    return arguments;
}

bool PlateformeQt::HorsEcranEstInstalle() {
    QStringList dossiers{qEnvironmentVariable("QT_QPA_PLATFORM_PLUGIN_PATH")};
    for (auto const& dossier : QCoreApplication::libraryPaths()) {
        dossiers.append(dossier + QStringLiteral("/platforms"));
    }
    return std::any_of(dossiers.cbegin(), dossiers.cend(), [](QString const& dossier) {
        return !QPluginLoader(dossier + QStringLiteral("/libqoffscreen.so")).metaData().isEmpty();
    });
}
