// SPDX-License-Identifier: MPL-2.0
#include "CommandeFenetre.h"

#include "FenetrePrincipale.h"
#include "InstanceUnique.h"
#include "commun/MessagesHote.h"
#include "fenetre/liens/LiaisonProcessus.h"
#include "fenetre/liens/VerificateurDesMoteurs.h"
#include "langue/Decoupeur.h"
#include "moteurs/ensemble/Decouverte.h"
#include "moteurs/ensemble/Fabriques.h"
#include "reglages/ReglagesHote.h"

#include <QApplication>

#include <memory>

namespace hote {

namespace {

constexpr char kHorsEcran[] = "offscreen";

void VerifieEcran() {
    // The library falls back to a platform that shows nothing: only whoever asks for it wants it.
    bool const voulue = qEnvironmentVariable("QT_QPA_PLATFORM").contains(QLatin1String(kHorsEcran));
    if (qobject_cast<QApplication*>(QCoreApplication::instance()) == nullptr ||
        (!voulue && QGuiApplication::platformName() == QLatin1String(kHorsEcran))) {
        throw ErreurHote(kSortieInterne,
                         Tr("Il n’y a pas d’écran où ouvrir la fenêtre. « vocalyne-hote corrige » "
                            "travaille dans un terminal."));
    }
}

LiaisonProcessus::Programme DonneProgramme(std::string const& fichierGreffon) {
    LiaisonProcessus::Programme programme{
        QCoreApplication::applicationFilePath(), {QStringLiteral("relais")}, {}};
    if (!fichierGreffon.empty()) {
        programme.avant << QStringLiteral("--greffon") << QString::fromStdString(fichierGreffon);
    }
    return programme;
}

/// What the person decides for good goes into the settings.
void Retiens(Revue& revue, ReglagesHote& reglages) {
    QObject::connect(&revue, &Revue::MotAjoute, &revue,
                     [&reglages](QString const& mot, QString const& langue, bool ajoute) {
                         if (ajoute) {
                             reglages.AccepteMot(DonneForme(mot), langue);
                         } else {
                             reglages.OublieMot(DonneForme(mot), langue);
                         }
                     });
    QObject::connect(&revue, &Revue::RegleEteinte, &revue,
                     [&reglages](QString const& moteur, QString const& regle, bool eteinte) {
                         reglages.EteinsRegle(moteur, regle, eteinte);
                     });
}

void Relie(FenetrePrincipale& fenetre, LiaisonProcessus& liaison,
           VerificateurDesMoteurs& verificateur) {
    QObject::connect(&liaison, &Liaison::Ouverte, &fenetre, &FenetrePrincipale::MetsTitre);
    QObject::connect(&liaison, &Liaison::Perdue, &fenetre, &FenetrePrincipale::AnnoncePerte);
    QObject::connect(&liaison, &LiaisonProcessus::Attend, &fenetre,
                     &FenetrePrincipale::AnnonceAttente);
    QObject::connect(&verificateur, &VerificateurDesMoteurs::EtatDuMoteur, &fenetre.DonneReglages(),
                     &PageReglages::MontreEtat);
    PageMots& mots = fenetre.DonneMots();
    QObject::connect(&mots, &PageMots::Demandee, &liaison, &LiaisonProcessus::ChercheMots);
    QObject::connect(&mots, &PageMots::Remplace, &liaison, &LiaisonProcessus::RemplaceMot);
    QObject::connect(&liaison, &LiaisonProcessus::MotsTrouves, &mots, &PageMots::Montre);
    QObject::connect(&liaison, &LiaisonProcessus::MotRemplace, &mots, &PageMots::MontreIssue);
}

QStringList DonneMoteurs(ReglagesHote const& reglages) {
    QStringList moteurs{QStringLiteral("hunspell"), QStringLiteral("regles")};
    QStringList fautes; // for the authors of engines, who have `vocalyne-hote moteurs`
    for (DescriptionMoteur const& moteur : DecouvreMoteurs(reglages, fautes)) {
        moteurs.append(moteur.nom);
    }
    return moteurs;
}

} // namespace

void PrepareFenetre() {
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
}

eCodeSortie ExecuteFenetre(QString const& id, std::string const& fichierGreffon,
                           QString const& page) {
    VerifieEcran();
    InstanceUnique instance(id);
    if (!instance.EstPremiere(page)) {
        return kSortieReussie;
    }
    LiaisonProcessus liaison(DonneProgramme(fichierGreffon), id);
    auto const reglages = std::make_shared<ReglagesHote>();
    reglages->Charge();
    VerificateurDesMoteurs verificateur(FaisReglage(reglages));
    Revue revue(liaison, verificateur);
    Retiens(revue, *reglages);
    FenetrePrincipale fenetre(revue, *reglages, DonneMoteurs(*reglages));
    QObject::connect(&instance, &InstanceUnique::Demandee, &fenetre, &FenetrePrincipale::Leve);
    Relie(fenetre, liaison, verificateur);
    fenetre.Leve(page);
    liaison.Demarre();
    QApplication::exec();
    return kSortieReussie;
}

} // namespace hote
