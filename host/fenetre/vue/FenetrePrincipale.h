// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "PageCorrection.h"

#include <QTabWidget>

namespace hote {

/// The window of one document.
class FenetrePrincipale : public QTabWidget {
    Q_OBJECT

  public:
    /// The review must outlive the window.
    explicit FenetrePrincipale(Revue& revue, QWidget* parent = nullptr);

    PageCorrection& DonneCorrection() noexcept { return *correction_; }
    void MetsTitre(QString const& titre);
    /// Says that the document is out of reach, and why.
    void AnnoncePerte(QString const& raison);
    void AnnonceAttente(bool longtemps);
    /// Brings the window to the front.
    void Leve();

  private:
    PageCorrection* correction_;
};

} // namespace hote
