// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "ImplAgentTexteur.h"

#include <list>
#include <memory>

class VocalyneOpenOfficeProxyQDBUS;

/// The agent of one LibreOffice or OpenOffice.org document: it turns the host's operations into
/// calls on the companion inside the office suite, through one D-Bus proxy that it owns.
///
/// It holds no text and no state of the link: every answer comes from the companion at the moment
/// it is asked. A call that waits blocks the host's thread, at most for the time-out named below
/// (25 s where none is); whatever goes wrong reads as the neutral value. A call that does not wait
/// is sent and forgotten. Nothing is retried. Where the bus went away and another has come in its
/// place, the next operation goes there; zones from before are dead, and the document has to be
/// synchronised anew.
class ModuleProxyOOo : public virtual ImplAgentTexteur {
  public:
    /// Binds to the companion named by the instance part of `identificateur` ("instance~document").
    /// Calls nothing on it and does not test whether it is there. Where the process has no
    /// connection to the session bus yet it is made; a bus that does not answer is waited for 10 s
    /// at most, and the agent is then without a bus. An instance part that no bus name can hold
    /// makes every call fail at once. An identifier that the bus would change on the way (U+0000,
    /// half of a surrogate pair) could name another document: the agent has no proxy, so nothing is
    /// ever sent and it cannot be initialised.
    explicit ModuleProxyOOo(UniChaine const& identificateur);
    /// Sends nothing: breaking the links is the host's explicit request.
    ~ModuleProxyOOo() override;

    bool Capacite1() override { return true; }
    bool Capacite2() override { return false; }
    bool Capacite3() override { return false; }
    bool Capacite4() override { return false; }
    bool Capacite5() override { return true; }
    bool Capacite6() override { return true; }
    bool Capacite7() override { return true; }

    void TraiteTexteLu(TexteAvecAttributs& /*texte*/) override {}
    void Crochet03() override {}
    /// Waits 1500 ms at most. True without a proxy; false when the companion does not answer, so
    /// that a slow one does not lose its document.
    bool DocEstMort() override;
    UniChaine DonneCheminDocument() override;
    UniChaine DonneChaineAgent7() override { return kUniChaineNulle; }
    /// Appends zones that the collection owns. True when the companion answered. Throws
    /// Json::RuntimeError when an integer of the answer is none; the zones before it stay.
    bool SynchronisePositions(CollectionZonesDeTexte& zones) override;
    UniChaine DonneNomApplication() override;
    UniChaine DonneFinDeParagraphe() override;
    UniChaine DonneTitreDocument() override;
    int Requete13() override { return 0; }
    /// Mode 0: for the corrector; any other: for the tools, as the dictionary exactly when it is 1.
    void InitialisePour(int mode) override;
    /// The first contact: waits 240 000 ms at most; true when the companion answered normally. For
    /// the window class "VCLSalFrame:OpenOffice.org 3.0" no companion exists: an alert says so, and
    /// nothing is sent. The other arguments are not read.
    bool InitialiseTexteur(UniChaine const& classe, UniChaine& message, int mode) override;
    bool EstLie() override;
    void Crochet19() override {}
    bool PermetsRetourDeCharriot() override;
    bool Requete21() override { return true; }
    /// Mode 0: for the corrector; 1 and 2: for the tools; any other sends nothing.
    void ActivePour(int mode) override;
    void Crochet23() override {}
    void Crochet24() override {}
    void RompsLienCorrecteur() override;
    void RompsLienTexteur() override;
    void Suspends() override;
    void Crochet28() override {}
    void Crochet29() override {}
    bool Requete30() override { return true; }
    /// Sends the two deltas as they are. Always answers 0: nothing is waited for.
    int AjusteSelectionPourOutils(int debut, int fin) override;
    UniChaine DonneContexte(int* debut, int* fin) override;
    bool Requete33() override { return true; }
    /// Answers the length of the text once it is queued on a connected bus, 0 otherwise. A text
    /// that the bus cannot carry unchanged (U+0000, half of a surrogate pair, over 40 Mi units) is
    /// not sent.
    int RemplaceEtReselectionne(UniChaine const& texte) override;

    // Own operations, after those of the interfaces. They need a proxy; `DonneContexte` tests it.
    virtual UniChaine DonneContexteSelection();
    virtual int DonneDebutSelectionDansSonContexte();
    virtual int DonneFinSelectionDansSonContexte();

  protected:
    /// Lets go of the proxy: every operation then gives its neutral answer. Zones made before must
    /// be gone. For an agent that derives from this one; the bridge itself keeps the link as long
    /// as the agent lives.
    void LibereProxy();
    VocalyneOpenOfficeProxyQDBUS* DonneProxy() const noexcept { return proxy_.get(); }

  private:
    /// Is there a proxy? One whose bus went away is replaced where there is a bus again; zones may
    /// still point to it, so it lives on, owned by the new one.
    bool Relie();

    std::unique_ptr<VocalyneOpenOfficeProxyQDBUS> proxy_;
    std::list<void*> listeReservee_; ///< kept for the host's layout; never filled
};
