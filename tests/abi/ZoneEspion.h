// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "InterfaceZoneDeTexte.h"

#include <initializer_list>
#include <string>

/// A zone whose every operation leaves its name and arguments.
class ZoneEspion : public InterfaceZoneDeTexte {
  public:
    ~ZoneEspion() override {
        if (aDetruire != nullptr) {
            *aDetruire = true;
        }
    }

    std::string nom;           ///< of the operation called last
    bool* aDetruire = nullptr; ///< set by the destructor

    bool AccepteIntervalles(int a, int b, int c, int d) override {
        nom = "AccepteIntervalles" + Liste({a, b, c, d});
        return true;
    }
    bool CorrigeDansTexteur(int debut, int fin, UniChaine const& texte, bool drapeau) override {
        nom = "CorrigeDansTexteur" + Liste({debut, fin, texte.Longueur(), drapeau ? 1 : 0});
        return true;
    }
    int DonneDebutSelection() override { return 31; }
    int DonneFinSelection() override { return 41; }
    UniChaine DonneChaineAuxiliaire() override { return {"aux", UniChaine::kCodageLitteral}; }
    TexteAvecAttributs DonneTexte() override {
        TexteAvecAttributs texte(sdd::ChaineN(6, u'x'));
        texte.MetsAttribut(1, 2, 3);
        return texte;
    }
    int DonneLongueur() override { return 71; }
    bool PeutCorriger(int debut, int fin, UniChaine const& texte) override {
        nom = "PeutCorriger" + Liste({debut, fin, texte.Longueur()});
        return true;
    }
    void AjusteIntervalle(int debut, int fin, int* debutAjuste, int* finAjustee,
                          bool drapeau) override {
        *debutAjuste = debut + 1;
        *finAjustee = fin + 1;
        nom = "AjusteIntervalle" + Liste({drapeau ? 1 : 0});
    }
    bool SelectionneIntervalle(int debut, int fin) override {
        nom = "SelectionneIntervalle" + Liste({debut, fin});
        return true;
    }
    bool EstMarquee() override {
        nom = "EstMarquee";
        return true;
    }

  private:
    static std::string Liste(std::initializer_list<int> valeurs) {
        std::string texte;
        for (int const valeur : valeurs) {
            texte += " " + std::to_string(valeur);
        }
        return texte;
    }
};
