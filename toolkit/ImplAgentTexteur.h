// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "InterfaceAgentTexteur.h"
#include "ZonesDeLAgent.h"

#include <cstdint>
#include <list>

/// The generic agent on which a connector builds.
///
/// A connector derives from it (virtually), overrides the extension points that its word processor
/// supports and the pure operations that stay, and gets in return zones that cover the document,
/// read in bounded blocks, with the selection placed in the zone that holds it and with positions
/// kept right when the host replaces text.
///
/// Positions of the extension points are absolute: UTF-16 code units from the document's start.
/// Everything runs on the host's calling thread. Zones belong to the agent, point to it, and live
/// until its next `SynchronisePositions` or its end.
class ImplAgentTexteur : public virtual InterfaceAgentTexteur {
  public:
    ImplAgentTexteur();
    ~ImplAgentTexteur() override;

    // What the generic agent answers to the host; a connector overrides what it knows better.
    void TraiteTexteLu(TexteAvecAttributs& /*texte*/) override {}
    void Crochet03() override {}
    UniChaine DonneCheminDocument() override { return {}; }
    void DonneImageApplication(ImageCommune& image) override;
    UniChaine DonneChaineAgent7() override { return {}; }
    /// True when bounds and text could be read, also for an empty document (no zone). Exceptions of
    /// the connector's reading operations do not leave it: false, with the zones that were read
    /// whole before in the collection.
    bool SynchronisePositions(CollectionZonesDeTexte& zones) override;
    bool DonneZones(CollectionZonesDeTexte& zones) override;
    UniChaine DonneNomApplication() override;
    int Requete14() override { return 0; }
    void Crochet23() override {}
    void Crochet24() override {}
    void Suspends() override {}
    void Crochet28() override {}
    void Crochet29() override {}
    bool InitialiseTexteur(UniChaine const& classe, UniChaine& message, int mode) override;
    bool Requete17() override { return true; }
    bool Requete21() override { return false; }
    bool Requete30() override { return true; }
    /// Selects [debut + context start, fin + context end); each end is shifted by its own context
    /// bound, on purpose. Answers what `SelectionneDansTexteur` answers, the shifted start for an
    /// empty or negative interval, 0 when nothing may be changed.
    int AjusteSelectionPourOutils(int debut, int fin) override;
    UniChaine DonneContexte(int* debut, int* fin) override;
    bool Requete33() override { return true; }
    int RemplaceEtReselectionne(UniChaine const& texte) override;

    // Extension points, in slot order. An exception that one throws never ends as half a zone or
    // as text that the document does not hold:
    // - `DonneFinZone`, while zones are made: the zone ends at the text's length.
    // - `PrepareLecture`, the length and the selection's bounds: `SynchronisePositions` answers
    //   false and makes no zone; `DonneContexte` goes on with bounds of 0.
    // - `DonneTexteAvecAttributs`, `TraiteTexteLu`, `DonneTailleBloc`, `RemplaceEspacesInsecables`,
    //   while zones are read: `SynchronisePositions` answers false; the zone being read is
    //   dropped, those before it stay.
    // - In everything else, and in the same operations when something else calls them (the
    //   context, the routines), it goes as it is to the host that called, and nothing further is
    //   done: zones are not moved after a replacement that threw, an interval is not adjusted.

    /// The characters with a special meaning in zone text: a constant, NUL-terminated byte
    /// sequence. 0x07 stands for text that was not read.
    virtual char const* DonneCaracteresSpeciaux();
    int Requete10() override { return 0; }
    InterfaceAgentTexteur* DonneAgentTexteur() override { return this; }
    /// Answer to a zone's `AccepteIntervalles`.
    virtual bool AccepteIntervallesZone(int debut1, int fin1, int debut2, int fin2);
    /// Replaces [debut, fin), asked for through the zone that ends at `finZone`.
    virtual void RemplaceDansTexteur(int debut, int fin, int finZone, UniChaine const& texte,
                                     bool drapeau);
    /// Reads [debut, fin). Less text than asked ends the reading; more is cut.
    virtual TexteAvecAttributs DonneTexteAvecAttributs(int debut, int fin);
    virtual UniChaine DonneTexteSelection();
    virtual int DonneDebutSelectionTexte();
    virtual int DonneLongueurTexte();
    virtual int DonneFinSelectionTexte();
    /// End of the zone that contains `position`: by default the first of the boundaries beyond it,
    /// the last boundary when none is, -1 without boundaries.
    virtual int DonneFinZone(int position);
    /// The text shown to the tools. In: the selection; out: the shifts that
    /// `AjusteSelectionPourOutils` will apply, the text, and the selection inside it.
    virtual void DonneTexteContexte(int& debutContexte, int& finContexte, UniChaine& texte,
                                    int& debutSelection, int& finSelection);
    /// May the document be changed by the tools?
    virtual bool PeutModifier();
    virtual bool PeutCorrigerZone(int debut, int fin, UniChaine const& texte);
    virtual void AjusteIntervalleZone(int debut, int fin, int finZone, int& debutAjuste,
                                      int& finAjustee, bool drapeau);
    virtual void AvantRemplacement(UniChaine const& texte);
    /// Answers `longueur` by default.
    virtual int ApresRemplacement(int longueur);
    /// Answers `debut` by default.
    virtual int SelectionneDansTexteur(int debut, int fin);
    /// Called before every read of the bounds.
    virtual void PrepareLecture();
    /// One read covers at most this value minus one characters.
    virtual int DonneTailleBloc();
    /// When true, no-break spaces that touch a space are read as spaces.
    virtual bool RemplaceEspacesInsecables();

    // Services of the agent to its zones; not slots.

    /// Replaces in the word processor, then moves the zones behind the replacement.
    void RemplaceDansZones(int debut, int fin, int finZone, UniChaine const& texte, bool drapeau);

    /// What every block read goes through before a zone stores it.
    void NormaliseTexteLu(TexteAvecAttributs& texte);

  protected:
    /// For the connector's use; the toolkit does not read them.
    UniChaine premiereChaine_; // NOLINT(misc-non-private-member-variables-in-classes): see above
    UniChaine secondeChaine_;  // NOLINT(misc-non-private-member-variables-in-classes): see above
    /// Ascending end positions of the zones, as the connector found them. Empty: one zone for all.
    std::list<std::int32_t> bornes_; // NOLINT(misc-non-private-member-variables-in-classes)

  private:
    /// False, and no guess, when the connector cannot be asked.
    bool LisBornes(BornesDuTexte& bornes);

    std::int32_t debutContexte_ = 0;
    std::int32_t finContexte_ = 0;
    ZonesDeLAgent zones_;

  protected:
    std::int32_t dernierEntier_ = 0; // NOLINT(misc-non-private-member-variables-in-classes)
};
