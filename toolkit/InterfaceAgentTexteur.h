// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "CollectionZonesDeTexte.h"
#include "InterfaceTexteur.h"
#include "InterfaceZoneDeTexte.h"
#include "UniChaine.h"

class ImageCommune;

/// The agent that the host attaches to one open document: it initialises, reads zones, selects,
/// replaces, and breaks the link.
///
/// The host calls every operation through the virtual table, by position: the order is frozen. The
/// base is virtual: one `InterfaceTexteur` whatever chain of toolkit classes lies below. The host
/// deletes an agent through this class's destructor. All operations run on the host's calling
/// thread and may block it while the word processor is asked. Strings are returned by value.
/// Positions: signed 32-bit offsets in UTF-16 code units, start inclusive, end exclusive.
///
/// Modes: 0 is the corrector, other values are the tools (1 the dictionary, 2 the guides).
class InterfaceAgentTexteur : public virtual InterfaceTexteur {
  public:
    // The most derived class constructs the virtual base; this class only has to name it.
    InterfaceAgentTexteur()
        : InterfaceTexteur(UniChaine()) {}
    ~InterfaceAgentTexteur() override = default;

    /// Lets the connector change a text that was read, in place, before the host sees it.
    virtual void TraiteTexteLu(TexteAvecAttributs& texte) = 0;
    /// Reserved hook.
    virtual void Crochet03() = 0;
    /// Has the document gone away?
    virtual bool DocEstMort() = 0;
    /// Path of the document's file; empty when it has none or cannot be asked.
    virtual UniChaine DonneCheminDocument() = 0;
    /// Puts the application's icon in `image`; leaves it untouched when there is none.
    virtual void DonneImageApplication(ImageCommune& image) = 0;
    /// Reserved text.
    virtual UniChaine DonneChaineAgent7() = 0;
    /// Reads the document anew and appends its zones to `zones`, in document order. What stands in
    /// the collection already stays, but for zones borrowed from this agent, which this call ends.
    /// False when the document could not be read.
    virtual bool SynchronisePositions(CollectionZonesDeTexte& zones) = 0;
    /// The same, under the name by which the host asks for zones the first time.
    virtual bool DonneZones(CollectionZonesDeTexte& zones) = 0;
    /// The word processor's display name.
    virtual UniChaine DonneNomApplication() = 0;
    /// The paragraph separator of this word processor.
    virtual UniChaine DonneFinDeParagraphe() = 0;
    /// The document's title.
    virtual UniChaine DonneTitreDocument() = 0;
    /// Reserved question.
    virtual int Requete13() { return 0; }
    /// Reserved question.
    virtual int Requete14() = 0;
    /// Gets the word processor ready for a mode.
    virtual void InitialisePour(int mode) = 0;
    /// Can the agent serve a window of this class? `message` is given empty and reserved; `mode` is
    /// 0 to 3. False makes the creation of the agent fail.
    virtual bool InitialiseTexteur(UniChaine const& classe, UniChaine& message, int mode) = 0;
    /// Reserved question.
    virtual bool Requete17() = 0;
    /// Does the agent still hold its link to the word processor?
    virtual bool EstLie() = 0;
    /// Reserved hook.
    virtual void Crochet19() {}
    /// May a carriage return be inserted in the document?
    virtual bool PermetsRetourDeCharriot() = 0;
    /// Reserved question.
    virtual bool Requete21() = 0;
    /// Brings the word processor to the front for a mode.
    virtual void ActivePour(int mode) = 0;
    /// Reserved hooks.
    virtual void Crochet23() = 0;
    virtual void Crochet24() = 0;
    /// Ends the corrector's link to the document.
    virtual void RompsLienCorrecteur() = 0;
    /// Ends the host's link to the word processor.
    virtual void RompsLienTexteur() = 0;
    /// Pauses the work on the document. Never fails towards the host.
    virtual void Suspends() = 0;
    /// Reserved hooks.
    virtual void Crochet28() = 0;
    virtual void Crochet29() = 0;
    /// Reserved question.
    virtual bool Requete30() = 0;
    /// Moves the selection for the tools; what the result tells is the connector's.
    virtual int AjusteSelectionPourOutils(int debut, int fin) = 0;
    /// The text shown to the tools, and the selection inside it. The outs must not be null; they
    /// are left as they were when there is nothing to tell.
    virtual UniChaine DonneContexte(int* debut, int* fin) = 0;
    /// Reserved question.
    virtual bool Requete33() = 0;
    /// Replaces the selection by `texte` and selects the result.
    virtual int RemplaceEtReselectionne(UniChaine const& texte) = 0;
};
