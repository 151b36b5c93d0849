// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "ListeDeRemarques.h"
#include "VueDePhrase.h"

#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <QWidget>

namespace hote {

/// The remarks of a document, one at a time and as a list, and what may be done about each. Each
/// action has a key of its own that acts at once, shown on its button; digits take a suggestion.
class PageCorrection : public QWidget {
    Q_OBJECT

  public:
    /// The review must outlive the page.
    explicit PageCorrection(Revue& revue, QWidget* parent = nullptr);

    /// A sentence on the state of the document; empty for none.
    void Annonce(QString const& phrase);

  protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;

  private:
    struct Action {
        QPushButton* bouton;
        bool demandeRemarque; ///< of use only while a remark is shown
    };

    QWidget* CreeRemarque();
    QWidget* CreeActions();
    QWidget* CreeListe();
    QPushButton* CreeBouton(QString const& texte, QList<QKeySequence> const& touches,
                            QString const& description, void (Revue::*geste)());
    void EcouteRevue();
    void ActualiseBientot();
    void Actualise();
    void MontreRemarque();
    void MontreRien();
    void MontreProgres();
    void ChoisisSuggestion(int rang);
    void Corrige(bool tous);
    QString DonneRemplacement() const;

    Revue& revue_;
    ListeDeRemarques modele_;
    QTimer bientot_;
    quint64 montree_ = 0;

    QLabel* etat_;
    QLabel* genre_;
    VueDePhrase* phrase_;
    QLabel* explication_;
    QListWidget* suggestions_;
    QLineEdit* autre_;
    QPushButton* corrige_;
    QPushButton* corrigeTous_;
    QPushButton* annule_;
    std::vector<Action> actions_;
    QListView* liste_;
    QLabel* compte_;
    QProgressBar* progres_;
    QPushButton* arrete_;
};

} // namespace hote
