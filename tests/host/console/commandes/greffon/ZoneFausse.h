// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "InterfaceZoneDeTexte.h"

#include <QJsonArray>

/// A zone of the scripted document: its own copy of the text, as a real one has.
class ZoneFausse : public InterfaceZoneDeTexte {
  public:
    ZoneFausse(int rang, QString texte, QJsonArray styles)
        : rang_(rang)
        , texte_(std::move(texte))
        , styles_(std::move(styles)) {}
    ~ZoneFausse() override;

    bool AccepteIntervalles(int debut1, int fin1, int debut2, int fin2) override;
    bool CorrigeDansTexteur(int debut, int fin, UniChaine const& texte, bool drapeau) override;
    int DonneDebutSelection() override;
    int DonneFinSelection() override;
    UniChaine DonneChaineAuxiliaire() override;
    TexteAvecAttributs DonneTexte() override;
    int DonneLongueur() override;
    bool PeutCorriger(int debut, int fin, UniChaine const& texte) override;
    void AjusteIntervalle(int debut, int fin, int* debutAjuste, int* finAjustee,
                          bool drapeau) override;
    bool SelectionneIntervalle(int debut, int fin) override;

  private:
    int rang_;
    QString texte_;
    QJsonArray styles_;
};
