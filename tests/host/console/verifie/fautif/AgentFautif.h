// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Faute.h"
#include "ImplAgentTexteur.h"

/// A whole connector's agent, over three paragraphs in memory, that keeps the contract but for the
/// breach that is asked for.
class AgentFautif : public virtual ImplAgentTexteur {
  public:
    explicit AgentFautif(UniChaine const& identificateur);
    ~AgentFautif() override;

    bool Capacite1() override { return !Faute("capacite-changeante") || (++appels_ % 2) != 0; }
    bool Capacite2() override { return true; }
    bool Capacite3() override { return true; }
    bool Capacite4() override { return true; }
    bool Capacite5() override { return true; }
    bool Capacite6() override { return true; }
    bool Capacite7() override { return true; }
    InterfaceAgentTexteur* DonneAgentTexteur() override;

    bool DocEstMort() override;
    UniChaine DonneCheminDocument() override;
    UniChaine DonneFinDeParagraphe() override { return UniChaine(QStringLiteral("\n")); }
    UniChaine DonneTitreDocument() override;
    void InitialisePour(int mode) override;
    bool EstLie() override { return true; }
    bool PermetsRetourDeCharriot() override { return true; }
    void ActivePour(int /*mode*/) override {}
    void RompsLienCorrecteur() override;
    void RompsLienTexteur() override {}
    void Suspends() override;
    bool SynchronisePositions(CollectionZonesDeTexte& zones) override;
    UniChaine DonneContexte(int* debut, int* fin) override;

    void PrepareLecture() override;
    int DonneTailleBloc() override { return 16; }
    int DonneLongueurTexte() override { return texte_.Longueur(); }
    int DonneDebutSelectionTexte() override { return debutSelection_; }
    int DonneFinSelectionTexte() override { return finSelection_; }
    int SelectionneDansTexteur(int debut, int fin) override;
    bool PeutCorrigerZone(int debut, int fin, UniChaine const& texte) override;
    void AjusteIntervalleZone(int debut, int fin, int finZone, int& debutAjuste, int& finAjustee,
                              bool drapeau) override;
    TexteAvecAttributs DonneTexteAvecAttributs(int debut, int fin) override;
    void RemplaceDansTexteur(int debut, int fin, int finZone, UniChaine const& texte,
                             bool drapeau) override;

  private:
    UniChaine texte_;
    int debutSelection_ = 0;
    int finSelection_ = 0;
    int appels_ = 0;
    int decalage_ = 0; ///< by the corrections since the last reading
    bool suspendu_ = false;
};
