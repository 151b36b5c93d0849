// SPDX-License-Identifier: MPL-2.0
// What a connector does with the host's libraries while it is loaded and unloaded. Its texts are
// QStringLiterals, whose characters go with it: whatever keeps one of them crashes later. The
// settings it writes are in the file that FICHIER_REGLAGES names.
#include "ChaineN.h"
#include "DAlerte.h"
#include "InitialisationGenerale.h"
#include "PrefsGeneralesQt.h"
#include "StockageReponse.h"
#include "Traduction.h"

#include <QApplication>
#include <QIcon>
#include <QWidget>

// Qt's macro declares a function of the global namespace; other units' objects may not be made yet.
static void EnregistreRessources() {
    Q_INIT_RESOURCE(essai);
}

namespace {

DomaineDeTraduction* leDomaine = nullptr;

void Charge() {
    EnregistreRessources();
    InitLocaleAvecQRC(&leDomaine, UniChaine(QStringLiteral(":/essai/en.mo")), kLangueFrancais,
                      true);
}

class Connecteur {
  public:
    Connecteur() {
        UniChaine const chemin(qEnvironmentVariable("FICHIER_REGLAGES"));
        PrefsGeneralesQt const prefs(chemin, kPrefsGenDirect, kPrefsGenLecture,
                                     QSettings::NativeFormat);
        auto const choix = prefs.Donne(UniChaine(QStringLiteral("a/b")), QVariant(0), true).toInt();
        InitialisationGenerale::InitLePlusTotPossible(
            eLangueSelonELangueAffichage(static_cast<eLangueAffichage>(choix)));
        InitQApplication();
        for (auto const type : {DDialogue::kStockeurMemoire, DDialogue::kStockeurReglages}) {
            StockageReponse::Initialise(type, chemin, QSettings::NativeFormat);
            StockageReponse::laListeStockeurDefaut.at(type)->Mets(
                UniChaine(QStringLiteral("dialogue")), 1);
        }
        InitialisationGenerale::InitApresQApp();
        QCoreApplication::setApplicationName(QLatin1String("Vocalyne 9"));
        AjouterAuxDomainesDeTraduction(Charge);
        // A window makes Qt load what it loads late: fonts, styles, image formats.
        QWidget fenetre;
        fenetre.setWindowTitle(_Tr(leDomaine, "Ouvrir", nullptr).VersQString());
        fenetre.show();
        QCoreApplication::processEvents();
        reponse_ = fenetre.windowTitle() == QLatin1String("Open") ? 1 : 0;
    }
    ~Connecteur() {
        for (auto& [type, stockeur] : StockageReponse::laListeStockeurDefaut) {
            delete stockeur;
        }
        StockageReponse::laListeStockeurDefaut.clear();
        sdd::ChaineN::LibereConvertisseurPourCodage();
        delete QCoreApplication::instance();
    }
    Connecteur(Connecteur const&) = delete;
    Connecteur& operator=(Connecteur const&) = delete;

    int DonneReponse() const { return reponse_; }

  private:
    int reponse_ = 0;
};

Connecteur const leConnecteur;

} // namespace

extern "C" __attribute__((visibility("default"))) int DonneReponse() {
    return leConnecteur.DonneReponse();
}
