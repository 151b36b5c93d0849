// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "ChaineN.h"
#include "ChaineTemplateAvecAttributs.h"
#include "UniChaine.h"

/// Text with 16-bit attributes, as zones hand it out.
using TexteAvecAttributs = sdd::ChaineTemplateAvecAttributs<sdd::ChaineN>;

/// One zone of text that the host checks: a paragraph, a cell, a note.
///
/// The host calls every operation through the virtual table, by position: the order is frozen.
/// Positions are relative to the zone's start. A zone is what was read: its text and selection are
/// those of the synchronisation that made it, with the corrections sent through it since.
/// InterfaceTexteur.h says how the lines in brackets read.
class InterfaceZoneDeTexte {
  public:
    InterfaceZoneDeTexte() = default;
    InterfaceZoneDeTexte(InterfaceZoneDeTexte const&) = delete;
    InterfaceZoneDeTexte& operator=(InterfaceZoneDeTexte const&) = delete;

    /// Called by who owns the zone: its collection, or the agent that lent it. Sends nothing.
    /// [host; needs the agent alive, loaded; leaves nothing]
    virtual ~InterfaceZoneDeTexte() = default;

    /// Would the zone take the two intervals [debut1, fin1) and [debut2, fin2)?
    /// [host; needs listed; fails: true, the word processor decides then]
    virtual bool AccepteIntervalles(int debut1, int fin1, int debut2, int fin2) = 0;

    /// Asks the word processor to replace [debut, fin) by `texte`. `drapeau` is the host's and is
    /// passed on. What the answer tells is the connector's: see its own header, and do not send a
    /// correction again because of it.
    /// [host; needs listed; leaves the zone's text corrected, its selection and attributes as they
    /// were read; fails: false]
    virtual bool CorrigeDansTexteur(int debut, int fin, UniChaine const& texte, bool drapeau) = 0;

    /// Where the selection begins inside the zone; 0 where the zone holds none.
    /// [host; needs listed]
    virtual int DonneDebutSelection() = 0;
    /// Where it ends; 0 where the zone holds none.
    /// [host; needs listed]
    virtual int DonneFinSelection() = 0;

    /// Reserved; the empty string in every connector so far.
    /// [host; needs listed]
    virtual UniChaine DonneChaineAuxiliaire() = 0;

    /// The zone's text with its attributes, which the agent's `TraiteTexteLu` has seen.
    /// [host; needs listed]
    virtual TexteAvecAttributs DonneTexte() = 0;

    /// Length of the zone's text.
    /// [host; needs listed]
    virtual int DonneLongueur() = 0;

    /// May [debut, fin), expected to hold `texte`, be changed now?
    /// [host; needs listed; waits; fails: false]
    virtual bool PeutCorriger(int debut, int fin, UniChaine const& texte) = 0;

    /// The interval that would really be changed for [debut, fin): writes both outs. `drapeau` is
    /// the host's and is passed on.
    /// [host; needs listed; fails: the interval as it is, or outs as they were]
    virtual void AjusteIntervalle(int debut, int fin, int* debutAjuste, int* finAjustee,
                                  bool drapeau) = 0;

    /// Asks the word processor to select [debut, fin).
    /// [host; needs listed; leaves the zone's own selection as it was read; fails: false]
    virtual bool SelectionneIntervalle(int debut, int fin) = 0;

    /// Is the zone marked? False unless a connector marks zones.
    /// [host; needs listed]
    virtual bool EstMarquee() { return false; }
};
