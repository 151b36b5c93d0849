// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "ImplAgentTexteur.h"

#include <sstream>
#include <string>

/// A connector whose every extension point leaves its name and its arguments.
class ConnecteurEspion : public virtual ImplAgentTexteur {
  public:
    ConnecteurEspion()
        : InterfaceTexteur(UniChaine()) {}

    std::string nom; ///< of the operation called last

    bool Capacite1() override { return true; }
    bool Capacite2() override { return true; }
    bool Capacite3() override { return true; }
    bool Capacite4() override { return true; }
    bool Capacite5() override { return true; }
    bool Capacite6() override { return true; }
    bool Capacite7() override { return true; }
    bool DocEstMort() override { return Oui("DocEstMort"); }
    UniChaine DonneFinDeParagraphe() override { return {}; }
    UniChaine DonneTitreDocument() override { return {}; }
    void InitialisePour(int /*mode*/) override {}
    bool EstLie() override { return true; }
    bool PermetsRetourDeCharriot() override { return true; }
    void ActivePour(int /*mode*/) override {}
    void RompsLienCorrecteur() override {}
    void RompsLienTexteur() override {}

    int Requete10() override { return Nombre("Requete10", 110); }
    bool AccepteIntervallesZone(int debut1, int fin1, int debut2, int fin2) override {
        return Oui("AccepteIntervallesZone", debut1, fin1, debut2, fin2);
    }
    void RemplaceDansTexteur(int debut, int fin, int finZone, UniChaine const& texte,
                             bool drapeau) override {
        Note("RemplaceDansTexteur", debut, fin, finZone, texte, drapeau);
    }
    TexteAvecAttributs DonneTexteAvecAttributs(int debut, int fin) override {
        Note("DonneTexteAvecAttributs", debut, fin);
        return TexteAvecAttributs(sdd::ChaineN(fin - debut, u'x'));
    }
    UniChaine DonneTexteSelection() override { return {"selection", UniChaine::kCodageLitteral}; }
    int DonneDebutSelectionTexte() override { return Nombre("DonneDebutSelectionTexte", 108); }
    int DonneLongueurTexte() override { return Nombre("DonneLongueurTexte", 109); }
    int DonneFinSelectionTexte() override { return Nombre("DonneFinSelectionTexte", 110); }
    int DonneFinZone(int position) override { return Nombre("DonneFinZone", 111, position); }
    void DonneTexteContexte(int& debutContexte, int& finContexte, UniChaine& /*texte*/,
                            int& debutSelection, int& finSelection) override {
        Note("DonneTexteContexte", debutContexte, finContexte, debutSelection, finSelection);
    }
    bool PeutModifier() override { return Oui("PeutModifier"); }
    bool PeutCorrigerZone(int debut, int fin, UniChaine const& texte) override {
        return Oui("PeutCorrigerZone", debut, fin, texte);
    }
    void AjusteIntervalleZone(int debut, int fin, int finZone, int& debutAjuste, int& finAjustee,
                              bool drapeau) override {
        Note("AjusteIntervalleZone", debut, fin, finZone, debutAjuste, finAjustee, drapeau);
    }
    void AvantRemplacement(UniChaine const& texte) override { Note("AvantRemplacement", texte); }
    int ApresRemplacement(int longueur) override {
        return Nombre("ApresRemplacement", 117, longueur);
    }
    int SelectionneDansTexteur(int debut, int fin) override {
        return Nombre("SelectionneDansTexteur", 118, debut, fin);
    }
    void PrepareLecture() override { Note("PrepareLecture"); }
    int DonneTailleBloc() override { return Nombre("DonneTailleBloc", 120); }
    bool RemplaceEspacesInsecables() override { return Oui("RemplaceEspacesInsecables"); }

  private:
    static int Lisible(int entier) { return entier; }
    static std::string Lisible(UniChaine const& texte) { return texte.VersUtf8(); }

    template <class... Arguments>
    void Note(char const* operation, Arguments const&... arguments) {
        std::ostringstream texte;
        texte << operation;
        ((texte << ' ' << Lisible(arguments)), ...);
        nom = texte.str();
    }
    template <class... Arguments>
    bool Oui(char const* operation, Arguments const&... arguments) {
        Note(operation, arguments...);
        return true;
    }
    template <class... Arguments>
    int Nombre(char const* operation, int nombre, Arguments const&... arguments) {
        Note(operation, arguments...);
        return nombre;
    }
};
