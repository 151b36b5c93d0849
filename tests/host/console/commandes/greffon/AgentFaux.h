// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "InterfaceAgentTexteur.h"

/// The agent of the scripted document.
class AgentFaux : public virtual InterfaceAgentTexteur {
  public:
    explicit AgentFaux(UniChaine const& identificateur);
    ~AgentFaux() override;

    bool Capacite1() override;
    bool Capacite2() override;
    bool Capacite3() override;
    bool Capacite4() override;
    bool Capacite5() override;
    bool Capacite6() override;
    bool Capacite7() override;
    int Requete10() override;
    int Requete11() override;
    int Requete12() override;

    void TraiteTexteLu(TexteAvecAttributs& texte) override;
    void Crochet03() override;
    bool DocEstMort() override;
    UniChaine DonneCheminDocument() override;
    void DonneImageApplication(ImageCommune& image) override;
    UniChaine DonneChaineAgent7() override;
    bool SynchronisePositions(CollectionZonesDeTexte& zones) override;
    bool DonneZones(CollectionZonesDeTexte& zones) override;
    UniChaine DonneNomApplication() override;
    UniChaine DonneFinDeParagraphe() override;
    UniChaine DonneTitreDocument() override;
    int Requete13() override;
    int Requete14() override;
    void InitialisePour(int mode) override;
    bool InitialiseTexteur(UniChaine const& classe, UniChaine& message, int mode) override;
    bool Requete17() override;
    bool EstLie() override;
    void Crochet19() override;
    bool PermetsRetourDeCharriot() override;
    bool Requete21() override;
    void ActivePour(int mode) override;
    void Crochet23() override;
    void Crochet24() override;
    void RompsLienCorrecteur() override;
    void RompsLienTexteur() override;
    void Suspends() override;
    void Crochet28() override;
    void Crochet29() override;
    bool Requete30() override;
    int AjusteSelectionPourOutils(int debut, int fin) override;
    UniChaine DonneContexte(int* debut, int* fin) override;
    bool Requete33() override;
    int RemplaceEtReselectionne(UniChaine const& texte) override;
};
