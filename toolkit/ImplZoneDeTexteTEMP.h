// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "InterfaceZoneDeTexte.h"

#include <cstdint>

class ImplAgentTexteur;

/// The generic zone: one interval of the document, with its text and its share of the selection.
/// It turns positions relative to itself into absolute ones and hands the request to its agent,
/// which must outlive it. Made by `ImplAgentTexteur::SynchronisePositions` only. Host's calling
/// thread.
class ImplZoneDeTexteTEMP : public InterfaceZoneDeTexte {
  public:
    /// The zone [debut, fin) of the document, absolute; empty of text until `Remplis`.
    ImplZoneDeTexteTEMP(ImplAgentTexteur* agent, int debut, int fin);
    ~ImplZoneDeTexteTEMP() override;

    bool AccepteIntervalles(int debut1, int fin1, int debut2, int fin2) override;
    /// Always false, on purpose: the generic agent has no answer of the word processor to give.
    bool CorrigeDansTexteur(int debut, int fin, UniChaine const& texte, bool drapeau) override;
    int DonneDebutSelection() override { return debutSelection_; }
    int DonneFinSelection() override { return finSelection_; }
    UniChaine DonneChaineAuxiliaire() override { return {}; }
    TexteAvecAttributs DonneTexte() override { return texte_; }
    int DonneLongueur() override { return texte_.Longueur(); }
    bool PeutCorriger(int debut, int fin, UniChaine const& texte) override;
    /// Shifts both outs into the document, lets the agent adjust them, and shifts them back.
    void AjusteIntervalle(int debut, int fin, int* debutAjuste, int* finAjustee,
                          bool drapeau) override;
    /// Whether the agent's answer (the absolute start, by default) is not 0.
    bool SelectionneIntervalle(int debut, int fin) override;
    bool EstMarquee() override { return marquee_; }

    // For the agent.

    /// Stores the selection, relative, unchanged.
    void MetsSelection(int debut, int fin);
    /// Reads the text from the agent, block by block. Text that the agent does not give stays as
    /// 0x07 filler, so that the zone always has its full length. What the agent's operations throw
    /// goes to the caller, with the blocks before it in place.
    void Remplis();
    /// Follows a replacement that ended at `fin` (before it) in the zone that ended at `finZone`
    /// and made the document `delta` longer.
    void Decale(int fin, int finZone, int delta);

    int DonneDebut() const noexcept { return debut_; }
    int DonneFin() const noexcept { return fin_; }

  private:
    ImplAgentTexteur* agent_;
    TexteAvecAttributs texte_;
    std::int32_t debut_;
    std::int32_t fin_;
    std::int32_t debutSelection_ = 0;
    std::int32_t finSelection_ = 0;
    bool marquee_ = false;
};
