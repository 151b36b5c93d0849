// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Faute.h"
#include "InterfaceZoneDeTexte.h"

/// A zone of a connector that makes its zones itself, wrong in the way that is asked for.
class ZoneFautive : public InterfaceZoneDeTexte {
  public:
    /// Is the breach one of a zone's?
    static bool EstVoulue() {
        return Faute("longueur-fausse") || Faute("selection-dehors") || Faute("deux-selections") ||
               Faute("styles-dehors") || Faute("styles-en-desordre") || Faute("selection-mobile");
    }

    bool AccepteIntervalles(int, int, int, int) override { return true; }
    bool CorrigeDansTexteur(int, int, UniChaine const&, bool) override {
        debut_ = 1;
        return true;
    }
    int DonneDebutSelection() override {
        return Faute("deux-selections") ? 2 : Faute("selection-mobile") ? debut_ : 0;
    }
    int DonneFinSelection() override {
        return Faute("selection-dehors") ? 1000 : Faute("deux-selections") ? 4 : debut_;
    }
    UniChaine DonneChaineAuxiliaire() override { return {}; }
    TexteAvecAttributs DonneTexte() override;
    int DonneLongueur() override { return texte_.size() + (Faute("longueur-fausse") ? 1 : 0); }
    bool PeutCorriger(int debut, int fin, UniChaine const& texte) override {
        return texte_.mid(debut, fin - debut) == texte.VersQString();
    }
    void AjusteIntervalle(int, int, int*, int*, bool) override {}
    bool SelectionneIntervalle(int, int) override { return false; }

  private:
    QString const texte_ = QStringLiteral("Un texte de la zone.");
    int debut_ = 0;
};
