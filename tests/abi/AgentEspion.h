// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "ImplAgentTexteur.h"

#include <string>

/// An agent whose every operation leaves its name.
class AgentEspion : public virtual ImplAgentTexteur {
  public:
    AgentEspion()
        : InterfaceTexteur(UniChaine("espion", UniChaine::kCodageLitteral)) {}
    ~AgentEspion() override {
        if (aDetruire != nullptr) {
            *aDetruire = true;
        }
    }

    std::string nom;           ///< of the operation called last
    bool* aDetruire = nullptr; ///< set by the destructor

    bool Capacite1() override { return Note("Capacite1"); }
    bool Capacite2() override { return Note("Capacite2"); }
    bool Capacite3() override { return Note("Capacite3"); }
    bool Capacite4() override { return Note("Capacite4"); }
    bool Capacite5() override { return Note("Capacite5"); }
    bool Capacite6() override { return Note("Capacite6"); }
    bool Capacite7() override { return Note("Capacite7"); }
    InterfaceAgentTexteur* DonneAgentTexteur() override {
        Note("DonneAgentTexteur");
        return this;
    }
    int Requete10() override { return NoteEntier("Requete10"); }
    int Requete11() override { return NoteEntier("Requete11"); }
    int Requete12() override { return NoteEntier("Requete12"); }

    void TraiteTexteLu(TexteAvecAttributs& /*texte*/) override { Note("TraiteTexteLu"); }
    void Crochet03() override { Note("Crochet03"); }
    bool DocEstMort() override { return Note("DocEstMort"); }
    UniChaine DonneCheminDocument() override { return NoteTexte("DonneCheminDocument"); }
    void DonneImageApplication(ImageCommune& /*image*/) override { Note("DonneImageApplication"); }
    UniChaine DonneChaineAgent7() override { return NoteTexte("DonneChaineAgent7"); }
    bool SynchronisePositions(CollectionZonesDeTexte& /*zones*/) override {
        return Note("SynchronisePositions");
    }
    bool DonneZones(CollectionZonesDeTexte& /*zones*/) override { return Note("DonneZones"); }
    UniChaine DonneNomApplication() override { return NoteTexte("DonneNomApplication"); }
    UniChaine DonneFinDeParagraphe() override { return NoteTexte("DonneFinDeParagraphe"); }
    UniChaine DonneTitreDocument() override { return NoteTexte("DonneTitreDocument"); }
    int Requete13() override { return NoteEntier("Requete13"); }
    int Requete14() override { return NoteEntier("Requete14"); }
    void InitialisePour(int mode) override { NoteMode("InitialisePour", mode); }
    bool InitialiseTexteur(UniChaine const& /*classe*/, UniChaine& /*message*/, int mode) override {
        NoteMode("InitialiseTexteur", mode);
        return true;
    }
    bool Requete17() override { return Note("Requete17"); }
    bool EstLie() override { return Note("EstLie"); }
    void Crochet19() override { Note("Crochet19"); }
    bool PermetsRetourDeCharriot() override { return Note("PermetsRetourDeCharriot"); }
    bool Requete21() override { return Note("Requete21"); }
    void ActivePour(int mode) override { NoteMode("ActivePour", mode); }
    void Crochet23() override { Note("Crochet23"); }
    void Crochet24() override { Note("Crochet24"); }
    void RompsLienCorrecteur() override { Note("RompsLienCorrecteur"); }
    void RompsLienTexteur() override { Note("RompsLienTexteur"); }
    void Suspends() override { Note("Suspends"); }
    void Crochet28() override { Note("Crochet28"); }
    void Crochet29() override { Note("Crochet29"); }
    bool Requete30() override { return Note("Requete30"); }
    int AjusteSelectionPourOutils(int debut, int fin) override {
        Note("AjusteSelectionPourOutils");
        return debut - fin;
    }
    UniChaine DonneContexte(int* debut, int* fin) override {
        *debut = 3;
        *fin = 9;
        return NoteTexte("DonneContexte");
    }
    bool Requete33() override { return Note("Requete33"); }
    int RemplaceEtReselectionne(UniChaine const& texte) override {
        Note("RemplaceEtReselectionne");
        return texte.Longueur();
    }

  private:
    bool Note(char const* operation) {
        nom = operation;
        return true;
    }
    void NoteMode(char const* operation, int mode) {
        nom = operation + (" " + std::to_string(mode));
    }
    int NoteEntier(char const* operation) {
        nom = operation;
        return 77;
    }
    UniChaine NoteTexte(char const* operation) {
        nom = operation;
        return {operation, UniChaine::kCodageLitteral};
    }
};
