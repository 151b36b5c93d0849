// SPDX-License-Identifier: MPL-2.0
#include "BilanVerification.h"
#include "Epreuves.h"
#include "Surveillance.h"
#include "Valgrind.h"
#include "commun/MessagesHote.h"
#include "console/Commandes.h"
#include "console/Sortie.h"
#include "greffon/LocaliseGreffon.h"
#include "greffon/PresentateurImmediat.h"

#include <QFileInfo>

#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>

namespace hote {

namespace {

/// Nobody is there to answer them.
class AlertesPassees : public PresentateurImmediat {
    void Recois(DAlerteInfo const& /*info*/) override {}
};

Epreuve const& TrouveEpreuve(QString const& nom) {
    auto const epreuve = std::find_if(kEpreuves.begin(), kEpreuves.end(), [&](Epreuve const& e) {
        return nom == QLatin1String(e.nom);
    });
    if (epreuve == kEpreuves.end()) {
        std::string noms;
        for (auto const& e : kEpreuves) {
            noms += (noms.empty() ? "" : ", ") + std::string(e.nom);
        }
        throw ErreurHote(kSortieUsage, Tr("--epreuve veut l’une de : {1}", noms));
    }
    return *epreuve;
}

/// One trial, here: what it finds goes to standard output as it happens.
eCodeSortie ExecuteUneEpreuve(OptionsHote const& options, std::string const& fichier) {
    Epreuve const& epreuve = TrouveEpreuve(options.epreuve);
    rlimit const sansImage{0, 0}; // a crash is told; its image helps nobody
    setrlimit(RLIMIT_CORE, &sansImage);
    Sortie sortie(ReserveSortie());
    AlertesPassees const alertes;
    Rapporteur rapporteur(sortie);
    Chantier const chantier(fichier, options.id, rapporteur);
    try {
        epreuve.eprouve(chantier);
    } catch (ErreurHote const&) {
        // A library that is no connector: the first trial tells what is wrong with it.
    }
    rapporteur.Finis();
    return kSortieReussie;
}

QStringList DonneArguments(OptionsHote const& options, QString const& fichier,
                           char const* epreuve) {
    QStringList arguments{QStringLiteral("verifie"), QStringLiteral("--epreuve"),
                          QLatin1String(epreuve)};
    arguments << fichier;
    if (!options.id.isEmpty()) {
        arguments << options.id;
    }
    return arguments;
}

} // namespace

eCodeSortie ExecuteVerifie(OptionsHote const& options) {
    std::string const trouve = LocaliseGreffon(options.greffon);
    QString const fichier = QFileInfo(QString::fromStdString(trouve)).absoluteFilePath();
    if (!options.epreuve.isEmpty()) {
        return ExecuteUneEpreuve(options, fichier.toStdString());
    }
    BilanVerification bilan;
    Surveillance surveillance(bilan, options.delaiMs);
    for (auto const& epreuve : kEpreuves) {
        surveillance.Execute(DonneArguments(options, fichier, epreuve.nom));
    }
    RegardeAvecValgrind(bilan, DonneArguments(options, fichier, "liberation"), fichier);
    Sortie sortie(STDOUT_FILENO);
    sortie.Ecris(options.json ? bilan.EcrisJson(fichier.toStdString(), options.id)
                              : bilan.EcrisTexte());
    sortie.Verifie();
    return bilan.Compte(SortDeRegle::Etat::Violee) == 0 ? kSortieReussie : kSortiePartielle;
}

} // namespace hote
