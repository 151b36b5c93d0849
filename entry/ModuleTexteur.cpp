// SPDX-License-Identifier: MPL-2.0
#include "ModuleTexteur.h"

#include "ChaineN.h"
#include "ClesInfos.h"
#include "InitialisationGenerale.h"
#include "PrefsGeneralesQt.h"
#include "StockageReponse.h"
#include "pont/ConnexionSession.h"

#include <QCoreApplication>
#include <QDir>
#include <QPointer>

namespace {

constexpr char const* kCleLangueAffichage =
    "Adaptateurs2/preferences/interfaceGenerale/langueAffichage";

/// The application object that this module had made, as long as it stands. The host may have
/// deleted it and put one of its own in its place, even at the same address. A function's, as the
/// set-up runs before this unit's own objects are constructed.
QPointer<QCoreApplication>& DonneApplicationDuModule() {
    static QPointer<QCoreApplication> application;
    return application;
}

} // namespace

UniChaine DonneCheminReglages() {
    UniChaine chemin(QDir::homePath());
    chemin.Ajoute(UniChaine("/", UniChaine::kCodageLitteral, -1));
    chemin.Ajoute(UniChaine(".vocalyne/9.0/vocalyne.conf", UniChaine::kCodageLitteral, -1));
    return chemin;
}

void InitialiseModule() {
    connexionSession::RetiensQtDBus();
    PrefsGeneralesQt const prefs(DonneCheminReglages(), kPrefsGenDirect, kPrefsGenLecture,
                                 QSettings::NativeFormat);
    auto const affichage =
        prefs
            .Donne(UniChaine(kCleLangueAffichage, UniChaine::kCodageLitteral, -1), QVariant(0),
                   true)
            .toInt();
    InitialisationGenerale::InitLePlusTotPossible(
        eLangueSelonELangueAffichage(static_cast<eLangueAffichage>(affichage)));
    auto* const applicationDeLHote = QCoreApplication::instance();
    InitQApplication();
    if (applicationDeLHote == nullptr) {
        DonneApplicationDuModule() = QCoreApplication::instance();
    }
    StockageReponse::Initialise(DDialogue::kStockeurReglages, DonneCheminReglages(),
                                QSettings::NativeFormat);
    InitialisationGenerale::InitApresQApp();
    QCoreApplication::setOrganizationDomain(QStringLiteral("ombrel.com"));
    QCoreApplication::setOrganizationName(QStringLiteral("Ombrel Informatique inc."));
    QCoreApplication::setApplicationName(QStringLiteral("Vocalyne 9"));
}

void LibereReponsesEtConvertisseur() {
    for (auto& [type, stockeur] : StockageReponse::laListeStockeurDefaut) {
        delete stockeur;
        stockeur = nullptr;
    }
    StockageReponse::laListeStockeurDefaut.clear();
    sdd::ChaineN::LibereConvertisseurPourCodage();
}

void LibereModule() {
    connexionSession::Ferme();
    LibereReponsesEtConvertisseur();
    delete DonneApplicationDuModule().data();
}
