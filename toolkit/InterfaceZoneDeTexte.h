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
/// Positions are signed 32-bit offsets in UTF-16 code units, relative to the zone's start; a start
/// is inclusive, an end exclusive. All operations run on the host's calling thread. No operation
/// reports an error: each says below what it answers when it cannot be served.
class InterfaceZoneDeTexte {
  public:
    InterfaceZoneDeTexte() = default;
    InterfaceZoneDeTexte(InterfaceZoneDeTexte const&) = delete;
    InterfaceZoneDeTexte& operator=(InterfaceZoneDeTexte const&) = delete;

    virtual ~InterfaceZoneDeTexte() = default;

    /// Would the zone take the two intervals [debut1, fin1) and [debut2, fin2)?
    virtual bool AccepteIntervalles(int debut1, int fin1, int debut2, int fin2) = 0;

    /// Replaces [debut, fin) by `texte` in the word processor. `drapeau` is the host's and is
    /// passed on. What the result tells is the connector's; see its own documentation.
    virtual bool CorrigeDansTexteur(int debut, int fin, UniChaine const& texte, bool drapeau) = 0;

    /// The selection inside the zone; 0 and 0 where the zone holds none.
    virtual int DonneDebutSelection() = 0;
    virtual int DonneFinSelection() = 0;

    /// Reserved; the empty string in every connector so far.
    virtual UniChaine DonneChaineAuxiliaire() = 0;

    /// The zone's text with its attributes, by value.
    virtual TexteAvecAttributs DonneTexte() = 0;

    /// Length of the zone's text in code units.
    virtual int DonneLongueur() = 0;

    /// May [debut, fin), expected to hold `texte`, be changed now? False when nobody can tell.
    virtual bool PeutCorriger(int debut, int fin, UniChaine const& texte) = 0;

    /// The interval that would really be changed for [debut, fin): writes both outs, which must not
    /// be null.
    virtual void AjusteIntervalle(int debut, int fin, int* debutAjuste, int* finAjustee,
                                  bool drapeau) = 0;

    /// Selects [debut, fin) in the word processor.
    virtual bool SelectionneIntervalle(int debut, int fin) = 0;

    /// Is the zone marked? False unless a connector marks zones.
    virtual bool EstMarquee() { return false; }
};
