// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "moteurs/Moteur.h"
#include "reglages/ReglagesHote.h"

#include <QComboBox>
#include <QListWidget>
#include <QWidget>

namespace hote {

/// What the person has chosen: the language of texts, engines, rules that are off, their words.
/// Each change counts at once for what is examined from then on, and is kept.
class PageReglages : public QWidget {
    Q_OBJECT

  public:
    /// `moteurs`: the names of the engines that there are. The settings must outlive the page.
    PageReglages(ReglagesHote& reglages, QStringList const& moteurs, QWidget* parent = nullptr);

    void MontreEtat(QString const& moteur, EtatMoteur etat, QString const& message);

  Q_SIGNALS:
    /// Texts are to be examined again.
    void Changes();

  protected:
    void showEvent(QShowEvent* evenement) override;

  private:
    QWidget* CreeLangue();
    QWidget* CreeMoteurs(QStringList const& moteurs);
    QWidget* CreeListe(QString const& titre, QListWidget*& liste, QString const& bouton,
                       void (PageReglages::*ote)(QString const&));
    void OteRegle(QString const& regle);
    void OteMot(QString const& mot);
    void Actualise();

    ReglagesHote& reglages_;
    QComboBox* langue_;
    QListWidget* moteurs_;
    QListWidget* regles_;
    QListWidget* mots_;
};

} // namespace hote
