// SPDX-License-Identifier: MPL-2.0
#include "RoutinesGeneralesQt.h"

#include <QFileInfo>
#include <QImageReader>

QIcon RoutinesGeneralesQt::DonneIconDeApplication(UniChemin const& application) {
    if (application.EstVide()) {
        return {};
    }
    QString const& chemin = application.DonneChemin().VersQString();
    if (QFileInfo(chemin).isFile() && QImageReader(chemin).canRead()) {
        return QIcon(chemin);
    }
    return QIcon::fromTheme(application.DonneNomAffiche().VersQString());
}
