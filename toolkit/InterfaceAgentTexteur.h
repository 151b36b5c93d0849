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
/// owns the agents that it is given and deletes them through this class's destructor. What the word
/// processor holds is not kept: each answer is from the moment it is asked. InterfaceTexteur.h says
/// how the lines in brackets read.
///
/// Modes: 0 is the corrector, other values are the tools (1 the dictionary, 2 the guides).
class InterfaceAgentTexteur : public virtual InterfaceTexteur {
  public:
    // The most derived class constructs the virtual base; this class only has to name it.
    InterfaceAgentTexteur()
        : InterfaceTexteur(UniChaine()) {}
    ~InterfaceAgentTexteur() override = default;

    /// Lets the connector change a text that was read, in place, before the host sees it. Its zones
    /// call it as well.
    /// [host; needs served]
    virtual void TraiteTexteLu(TexteAvecAttributs& texte) = 0;
    /// Reserved hook.
    /// [host; needs served]
    virtual void Crochet03() = 0;
    /// Has the document gone away? An agent without a link says so of its document.
    /// [host; needs made; waits; fails: false, since a slow word processor has not lost it]
    virtual bool DocEstMort() = 0;
    /// Path of the document's file; empty when it has none.
    /// [host; needs served; waits; fails: empty]
    virtual UniChaine DonneCheminDocument() = 0;
    /// Puts the application's icon in `image`.
    /// [host; needs made; fails: `image` as it was]
    virtual void DonneImageApplication(ImageCommune& image) = 0;
    /// Reserved text.
    /// [host; needs made]
    virtual UniChaine DonneChaineAgent7() = 0;
    /// Reads the document anew and appends its zones to `zones`, in document order; each entry says
    /// who owns its zone. What stands in the collection already stays.
    /// [host; needs served; leaves zones lent by this agent before invalid, and out of `zones`, the
    /// new ones listed; waits; throws std::exception for an answer that cannot be read, with the
    /// zones before it listed; fails: false]
    virtual bool SynchronisePositions(CollectionZonesDeTexte& zones) = 0;
    /// The same, under the name by which the host asks for zones the first time.
    /// [as `SynchronisePositions`]
    virtual bool DonneZones(CollectionZonesDeTexte& zones) = 0;
    /// The word processor's display name.
    /// [host; needs made; fails: empty]
    virtual UniChaine DonneNomApplication() = 0;
    /// The paragraph separator of this word processor, the same every time.
    /// [host; needs made]
    virtual UniChaine DonneFinDeParagraphe() = 0;
    /// The document's title.
    /// [host; needs served; waits; fails: empty]
    virtual UniChaine DonneTitreDocument() = 0;
    /// Reserved question.
    /// [host; needs made]
    virtual int Requete13() { return 0; }
    /// Reserved question.
    /// [host; needs made]
    virtual int Requete14() = 0;
    /// Gets the word processor ready for a mode; any value is taken.
    /// [host; needs served; leaves the word processor ready for that mode, and what `DonneContexte`
    /// told before forgotten]
    virtual void InitialisePour(int mode) = 0;
    /// Can the agent serve a window of this class? The first operation of an agent, called while it
    /// is created. `message` is given empty, and what it then holds is not read; `mode` is 0 to 3.
    /// May show an alert.
    /// [host; needs made; leaves served; waits; fails: false, and the agent is deleted]
    virtual bool InitialiseTexteur(UniChaine const& classe, UniChaine& message, int mode) = 0;
    /// Reserved question.
    /// [host; needs made]
    virtual bool Requete17() = 0;
    /// Does the agent still hold its link to the word processor? Nothing is asked there.
    /// [host; needs made]
    virtual bool EstLie() = 0;
    /// Reserved hook.
    /// [host; needs served]
    virtual void Crochet19() {}
    /// May a carriage return be inserted in the document?
    /// [host; needs served; waits; fails: false]
    virtual bool PermetsRetourDeCharriot() = 0;
    /// Reserved question.
    /// [host; needs made]
    virtual bool Requete21() = 0;
    /// Brings the word processor to the front for a mode; any value is taken.
    /// [host; needs served]
    virtual void ActivePour(int mode) = 0;
    /// Reserved hook.
    /// [host; needs served]
    virtual void Crochet23() = 0;
    /// Reserved hook.
    /// [host; needs served]
    virtual void Crochet24() = 0;
    /// Ends the corrector's link to the document.
    /// [host; needs served; leaves zones without a claim on answers until they are read anew]
    virtual void RompsLienCorrecteur() = 0;
    /// Ends the host's link to the word processor. The agent is not deleted by it.
    /// [host; needs served; leaves zones and selection without a claim on answers until
    /// `SynchronisePositions`]
    virtual void RompsLienTexteur() = 0;
    /// Pauses the work on the document; any later operation takes it up again.
    /// [host; needs served]
    virtual void Suspends() = 0;
    /// Reserved hook.
    /// [host; needs served]
    virtual void Crochet28() = 0;
    /// Reserved hook.
    /// [host; needs served]
    virtual void Crochet29() = 0;
    /// Reserved question.
    /// [host; needs made]
    virtual bool Requete30() = 0;
    /// Asks for the selection to be moved: its start by `debut` and its end by `fin` units from
    /// where the last `DonneContexte` found them. What the answer tells is the connector's.
    /// [host; needs served, a `DonneContexte`; leaves the document's selection moved; fails: 0]
    virtual int AjusteSelectionPourOutils(int debut, int fin) = 0;
    /// The text shown to the tools, and where the selection stands in it.
    /// [host; needs served; leaves the place from which the selection is moved; waits;
    /// fails: empty, the outs 0 or as they were]
    virtual UniChaine DonneContexte(int* debut, int* fin) = 0;
    /// Reserved question.
    /// [host; needs made]
    virtual bool Requete33() = 0;
    /// Replaces the selection by `texte` and selects the result. Answers the length of what stands
    /// there then, as far as that is known.
    /// [host; needs served; leaves the document's selection on the result; fails: 0]
    virtual int RemplaceEtReselectionne(UniChaine const& texte) = 0;
};
