// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Contrat.h"
#include "InterfaceZoneDeTexte.h"

#include <cstdint>
#include <vector>

class ModuleProxyOOo;
class VocalyneOpenOfficeProxyQDBUS;

/// One zone of a LibreOffice document: a named stretch of text as the companion cut it.
///
/// Reading is served from the copy that it holds; changes go to the companion under the zone's
/// name. Proxy and agent are the agent's, and must outlive the zone; without one of them nothing is
/// sent.
class ZoneDeTexteOOoProxy : public InterfaceZoneDeTexte {
  public:
    /// `proxy` and `agent` may be null and are not owned.
    ZoneDeTexteOOoProxy(VocalyneOpenOfficeProxyQDBUS* proxy, ModuleProxyOOo* agent,
                        UniChaine const& texte, UniChaine const& nom, int debutSel, int finSel);
    ~ZoneDeTexteOOoProxy() override;

    /// Appends a style run; runs stand in document order.
    void AjouteStyle(contrat::PlageDeStyle const& plage) { styles_.push_back(plage); }

    /// Always true, on purpose: the companion decides when a range is corrected.
    bool AccepteIntervalles(int debut1, int fin1, int debut2, int fin2) override;
    /// Sends the correction without waiting, and replaces in the zone's own copy at once. True once
    /// it is queued on a connected bus, whatever the companion answers: after false nothing was
    /// sent, and only then may the host try again. Selection and style runs stay as they were, on
    /// purpose: they are right again after the next synchronisation. A text that the bus cannot
    /// carry unchanged (U+0000, half of a surrogate pair, over 40 Mi units) is neither sent nor
    /// replaced: false.
    bool CorrigeDansTexteur(int debut, int fin, UniChaine const& texte, bool drapeau) override;
    int DonneDebutSelection() override { return debutSel_; }
    int DonneFinSelection() override { return finSel_; }
    UniChaine DonneChaineAuxiliaire() override { return kUniChaineNulle; }
    TexteAvecAttributs DonneTexte() override;
    int DonneLongueur() override { return texte_.Longueur(); }
    /// Waits for the companion's answer; false when there is none.
    bool PeutCorriger(int debut, int fin, UniChaine const& texte) override;
    /// The interval as it is: the companion adjusts nothing.
    void AjusteIntervalle(int debut, int fin, int* debutAjuste, int* finAjustee,
                          bool drapeau) override;
    /// True once the request is queued on a connected bus, whatever the companion answers.
    bool SelectionneIntervalle(int debut, int fin) override;

    UniChaine const& DonneNom() const noexcept { return nom_; }
    std::vector<contrat::PlageDeStyle> const& DonneStyles() const noexcept { return styles_; }

  private:
    bool EstReliee() const noexcept { return proxy_ != nullptr && agent_ != nullptr; }

    VocalyneOpenOfficeProxyQDBUS* proxy_;
    ModuleProxyOOo* agent_;
    UniChaine texte_;
    std::int32_t debutSel_;
    std::int32_t finSel_;
    UniChaine nom_;
    std::vector<contrat::PlageDeStyle> styles_;
};
