// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "VueDePhrase.h"
#include "fenetre/echange/MotsDuCurseur.h"

#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QWidget>

namespace hote {

/// The word that is selected in the document, or at its caret: spelling, context, synonyms, and one
/// of them put in its place.
class PageMots : public QWidget {
    Q_OBJECT

  public:
    explicit PageMots(QWidget* parent = nullptr);

    void Montre(MotsDuCurseur const& mots);
    void MontreIssue(bool fait);

  Q_SIGNALS:
    /// The person wants what is selected now looked up.
    void Demandee();
    void Remplace(hote::MotsDuCurseur const& mots, QString const& nouveau);

  private:
    void Remplis();
    void AjouteGroupe(QString const& titre, QStringList const& mots, QStringList const& notes);
    void RemplaceParChoisi();

    MotsDuCurseur mots_;
    QLabel* titre_;
    VueDePhrase* phrase_;
    QTreeWidget* arbre_;
    QPushButton* remplace_;
};

} // namespace hote
