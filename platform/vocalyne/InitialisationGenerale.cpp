// SPDX-License-Identifier: MPL-2.0
#include "InitialisationGenerale.h"

#include "RechargeDomaines.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <memory>
#include <optional>

namespace {

std::optional<eLangue> laLangue;

} // namespace

void InitialisationGenerale::InitLePlusTotPossible(eLangue langue) {
    bool const change = langue != DonneLangue();
    laLangue = langue;
    if (change) {
        RechargeDomainesDeTraduction();
    }
}

void InitialisationGenerale::InitApresQApp() {
    auto* const application = QCoreApplication::instance();
    if (application == nullptr) {
        return;
    }
    // The application owns the translator, and both go together; the name finds it again here.
    auto const kNom = QStringLiteral("vocalyne_qtbase");
    delete application->findChild<QTranslator*>(kNom, Qt::FindDirectChildrenOnly);
    if (DonneLangue() != kLangueFrancais) {
        return; // Qt's own texts are English
    }
    auto traducteur = std::make_unique<QTranslator>();
    traducteur->setObjectName(kNom);
    if (traducteur->load(QLocale(QLocale::French), QStringLiteral("qtbase"), QStringLiteral("_"),
                         QLibraryInfo::location(QLibraryInfo::TranslationsPath))) {
        traducteur->setParent(application);
        QCoreApplication::installTranslator(traducteur.release());
    }
}

eLangue InitialisationGenerale::DonneLangue() {
    return laLangue ? *laLangue : eLangueSelonELangueAffichage(kAffichageSysteme);
}
