// SPDX-License-Identifier: MPL-2.0
#include "Aide.h"
#include "Avertissement.h"
#include "ChoixDocument.h"
#include "Commandes.h"
#include "InitialisationGenerale.h"
#include "LigneDeCommande.h"
#include "Sortie.h"
#include "commun/MessagesHote.h"
#include "fenetre/relais/CommandeRelais.h"
#include "fenetre/vue/CommandeFenetre.h"

#include <QCoreApplication>

#include <unistd.h>

#include <cstdio>

namespace hote {

namespace {

/// The application object that the library makes. A plug-in that is unloaded may take it along.
class Application {
  public:
    Application() { InitQApplication(); }
    ~Application() { delete QCoreApplication::instance(); }
    Application(Application const&) = delete;
    Application& operator=(Application const&) = delete;
};

/// Qt's remarks are for the program's authors, or for a connector's, who have `pilote`.
void FiltreMessagesQt(QtMsgType genre, QMessageLogContext const& /*contexte*/,
                      QString const& message) {
    if (genre == QtCriticalMsg || genre == QtFatalMsg) {
        Avertis(message.toStdString());
    }
}

eCodeSortie EcrisEtFinis(std::string const& texte) {
    Sortie sortie(STDOUT_FILENO);
    sortie.Ecris(texte);
    sortie.Verifie();
    return kSortieReussie;
}

eCodeSortie Execute(QStringList const& arguments) {
    OptionsHote const options = AnalyseLigne(arguments);
    if (options.commande == OptionsHote::Commande::Aide) {
        return EcrisEtFinis(DonneAide());
    }
    if (options.commande == OptionsHote::Commande::Version) {
        return EcrisEtFinis("vocalyne-hote " VOCALYNE_VERSION "\n");
    }
    qInstallMessageHandler(FiltreMessagesQt);
    if (options.commande == OptionsHote::Commande::Fenetre) {
        PrepareFenetre();
    }
    Application const application;
    InitialisationGenerale::InitApresQApp();
    switch (options.commande) {
    case OptionsHote::Commande::Documents:
        return ExecuteDocuments(options);
    case OptionsHote::Commande::Corrige:
        return ExecuteCorrige(options);
    case OptionsHote::Commande::Dictionnaire:
        return ExecuteDictionnaire(options);
    case OptionsHote::Commande::Moteurs:
        return ExecuteMoteurs(options);
    case OptionsHote::Commande::Diagnostic:
        return ExecuteDiagnostic(options);
    case OptionsHote::Commande::Fenetre:
        return ExecuteFenetre(options.id.isEmpty() ? ChoisisDocument() : options.id,
                              options.greffon, options.page);
    case OptionsHote::Commande::Relais:
        return ExecuteRelais(options.id, options.chemin, options.greffon);
    case OptionsHote::Commande::Verifie:
        return ExecuteVerifie(options);
    default:
        qInstallMessageHandler(nullptr);
        return ExecutePilote(options);
    }
}

} // namespace

} // namespace hote

int main(int argc, char** argv) {
    using namespace hote;
    PrepareFluxStandard();
    try {
        InitialiseMessages();
        QStringList arguments;
        // Bytes as UTF-8 whatever the locale: a file's name must come out as it went in.
        for (int i = 0; i < argc; ++i) {
            arguments.append(QString::fromUtf8(argv[i]));
        }
        return Execute(arguments);
    } catch (ErreurHote const& erreur) {
        Avertis(erreur.what());
        if (erreur.DonneCode() == kSortieUsage) {
            std::fputs(DonneUsage().c_str(), stderr);
        }
        return erreur.DonneCode();
    } catch (std::exception const& erreur) {
        Avertis(erreur.what());
        return kSortieInterne;
    }
}
