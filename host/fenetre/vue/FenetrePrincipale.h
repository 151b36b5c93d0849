// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "PageCorrection.h"
#include "PageMots.h"
#include "PageReglages.h"

#include <QTabWidget>

namespace hote {

/// The window of one document.
class FenetrePrincipale : public QTabWidget {
    Q_OBJECT

  public:
    /// Review and settings must outlive the window.
    FenetrePrincipale(Revue& revue, ReglagesHote& reglages, QStringList const& moteurs,
                      QWidget* parent = nullptr);

    PageMots& DonneMots() noexcept { return *mots_; }
    PageReglages& DonneReglages() noexcept { return *reglages_; }
    void MetsTitre(QString const& titre);
    /// Says that the document is out of reach, and why.
    void AnnoncePerte(QString const& raison);
    void AnnonceAttente(bool longtemps);
    /// Brings the window to the front, on the page of that name ("mots") if it has one.
    void Leve(QString const& page);

  protected:
    void changeEvent(QEvent* evenement) override;

  private:
    void DemandeLesMots();

    PageCorrection* correction_;
    PageMots* mots_;
    PageReglages* reglages_;
};

} // namespace hote
