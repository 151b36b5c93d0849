// SPDX-License-Identifier: MPL-2.0
#include "FenetrePrincipale.h"

#include "commun/MessagesHote.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>

namespace hote {

FenetrePrincipale::FenetrePrincipale(Revue& revue, ReglagesHote& reglages,
                                     QStringList const& moteurs, QWidget* parent)
    : QTabWidget(parent)
    , correction_(new PageCorrection(revue))
    , mots_(new PageMots)
    , reglages_(new PageReglages(reglages, moteurs)) {
    setDocumentMode(true);
    addTab(correction_, EnQt(Tr("&Correction")));
    addTab(mots_, EnQt(Tr("&Mots")));
    addTab(reglages_, EnQt(Tr("&Réglages")));
    connect(this, &QTabWidget::currentChanged, this, [this] {
        currentWidget()->setFocus();
        DemandeLesMots();
    });
    connect(reglages_, &PageReglages::Changes, &revue, &Revue::Reexamine);
    connect(&revue, &Revue::EtatChange, this, &FenetrePrincipale::DemandeLesMots);
    MetsTitre({});
    correction_->setFocus();
    connect(&revue, &Revue::EtatChange, this, [this, &revue] {
        if (!revue.EstPerdue()) {
            correction_->Annonce({});
        }
    });
    connect(&revue, &Revue::Refusee, this, [this](QString const& raison) {
        correction_->Annonce(
            EnQt(Tr("Correction refusée : {1}",
                    raison.isEmpty() ? EnQt(Tr("le passage a changé, ou est protégé.")) : raison)));
    });
    // Beside the document: at the right edge of the screen.
    QRect const ecran = QGuiApplication::primaryScreen()->availableGeometry();
    int const largeur = std::min(fontMetrics().averageCharWidth() * 62, ecran.width());
    int const hauteur = std::min(fontMetrics().lineSpacing() * 46, ecran.height() * 9 / 10);
    resize(largeur, hauteur);
    move(ecran.right() - largeur, ecran.top() + (ecran.height() - hauteur) / 3);
}

void FenetrePrincipale::MetsTitre(QString const& titre) {
    setWindowTitle(titre.isEmpty() ? QStringLiteral("Vocalyne")
                                   : EnQt(Tr("{1} – Vocalyne", titre)));
}

void FenetrePrincipale::AnnoncePerte(QString const& raison) {
    correction_->Annonce(EnQt(Tr("Le document n’est plus à portée. {1} La correction reprendra "
                                 "dès qu’il sera là.",
                                 raison)));
}

void FenetrePrincipale::AnnonceAttente(bool longtemps) {
    correction_->Annonce(longtemps ? EnQt(Tr("Le document met du temps à répondre…")) : QString());
}

void FenetrePrincipale::DemandeLesMots() {
    if (currentWidget() == mots_ && isVisible()) {
        Q_EMIT mots_->Demandee();
    }
}

void FenetrePrincipale::changeEvent(QEvent* evenement) {
    QTabWidget::changeEvent(evenement);
    // The person comes from the document, where another word may be selected.
    if (evenement->type() == QEvent::ActivationChange && isActiveWindow()) {
        DemandeLesMots();
    }
}

void FenetrePrincipale::Leve(QString const& page) {
    if (page == QLatin1String("mots")) {
        setCurrentWidget(mots_);
    }
    if (isMinimized()) {
        showNormal();
    }
    show();
    raise();
    activateWindow();
}

} // namespace hote
