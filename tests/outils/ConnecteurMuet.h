// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "ImplAgentTexteur.h"

/// The least connector there can be: it fills what the generic agent leaves open and overrides
/// nothing else.
class ConnecteurMuet : public virtual ImplAgentTexteur {
  public:
    explicit ConnecteurMuet(UniChaine const& identificateur = {})
        : InterfaceTexteur(identificateur) {}

    bool Capacite1() override { return false; }
    bool Capacite2() override { return false; }
    bool Capacite3() override { return false; }
    bool Capacite4() override { return false; }
    bool Capacite5() override { return false; }
    bool Capacite6() override { return false; }
    bool Capacite7() override { return false; }
    bool DocEstMort() override { return false; }
    UniChaine DonneFinDeParagraphe() override { return {}; }
    UniChaine DonneTitreDocument() override { return {}; }
    void InitialisePour(int /*mode*/) override {}
    bool EstLie() override { return true; }
    bool PermetsRetourDeCharriot() override { return false; }
    void ActivePour(int /*mode*/) override {}
    void RompsLienCorrecteur() override {}
    void RompsLienTexteur() override {}

    // What a test may set or see of a generic agent.
    UniChaine& PremiereChaine() { return premiereChaine_; }
    UniChaine& SecondeChaine() { return secondeChaine_; }
    std::list<std::int32_t>& Bornes() { return bornes_; }
    std::int32_t& DernierEntier() { return dernierEntier_; }
};
