// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "CarnetDeZones.h"
#include "PileDAnnulation.h"
#include "RecueilDeZones.h"
#include "SelectionVue.h"

#include <com/sun/star/frame/XModel.hpp>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace extension {

/// A zone with what it holds now.
struct ZoneLue {
    std::shared_ptr<ZoneOuverte> zone;
    compagnon::PlanDePortions plan;
    std::optional<compagnon::Intervalle> selection; ///< its part in here, if it reaches here
    bool deborde = false; ///< the selection goes on in another zone (told by `DonneSelection`)
};

/// A zone that a walk has met, and the length of its text in UTF-16 units.
struct ZoneParcourue {
    std::shared_ptr<ZoneOuverte> zone;
    std::size_t taille;
};

/// One document that is open in the office, of whatever kind. Main thread only; operations may
/// throw UNO exceptions, which mean that the document cannot be reached any more.
class DocumentOuvert {
  public:
    /// `cle`: the document part of its identifier; opaque, never given before.
    DocumentOuvert(css::uno::Reference<css::frame::XModel> const& modele, std::string cle);
    DocumentOuvert(DocumentOuvert const&) = delete;
    DocumentOuvert& operator=(DocumentOuvert const&) = delete;
    virtual ~DocumentOuvert();

    std::string const& DonneCle() const noexcept { return cle_; }
    css::uno::Reference<css::frame::XModel> const& DonneModele() const noexcept { return modele_; }

    /// Its kind, as the wire names it: "writer", "calc", "impress", "draw".
    virtual char const* DonneGenre() const = 0;
    /// The language that its text is in unless something else is said there: a BCP 47 tag; empty
    /// where it has none.
    std::string DonneLangue() const;
    std::u16string DonneTitre() const;
    /// Path of the document's file (its URL where it is not a local file); empty without one.
    std::u16string DonneChemin() const;
    bool EstEnLectureSeule() const;
    void Active() const;

    /// All zones in reading order. Where `souffle` is called the walk may be left, and forgotten
    /// there; empty for one that is not to be left.
    void Parcours(RecueilDeZones::Prends const& prends,
                  std::function<void()> const& souffle = nullptr);
    /// A correction is made: of one in a shape's text the office tells nobody.
    void NoteCorrection() noexcept { ++corrections_; }
    /// How many were.
    std::uint64_t DonneCorrections() const noexcept { return corrections_; }
    /// Does the office tell of every change in it? Otherwise it cannot be read in pieces.
    virtual bool DitSesChangements() const { return true; }
    /// The part of what is selected now in each of these zones: all of them, in reading order, as
    /// they stand.
    std::vector<std::optional<compagnon::Intervalle>>
    DonneSelections(std::vector<ZoneParcourue> const& zones);

    /// How many of the zones of the last walk cannot be changed, as something around them is
    /// protected. Takes time by the zones where there may be any.
    std::size_t CompteProtegees() const;
    /// How many zones the last walk found; before the first one there are none.
    std::size_t DonneNombreDeZones() const noexcept { return nombre_; }
    /// What the last walk over all zones left unread, by reason.
    compagnon::NonLus const& DonneNonLus() const noexcept { return nonLus_; }

    /// The zone of that key, or null.
    std::shared_ptr<ZoneOuverte> DonneZone(std::string const& cle) const {
        return carnet_.TrouveParCle(cle);
    }

    /// The zone where the selection starts, and its part inside of it; nothing when no text is
    /// selected and no caret stands in a text. `selection` is set.
    std::optional<ZoneLue> DonneSelection();

    /// The undo list, for corrections.
    PileDAnnulation& Annulations() noexcept { return annulations_; }

    /// Selects a range of a zone (of the plan just read) and brings it into view. False when the
    /// office then has something else selected, whatever it answered: comments, notes pages and
    /// headers cannot be selected in from outside. What is selected then is none of the caller's.
    bool Selectionne(ZoneOuverte& zone, compagnon::PlanDePortions const& plan,
                     compagnon::Intervalle plage);

  protected:
    /// The family and the name of the style that most text has; the document itself says what is
    /// ordinary where it has none.
    struct NomDeStyle {
        char const* famille;
        char const* nom;
    };
    virtual NomDeStyle DonneStyleOrdinaire() const { return {nullptr, nullptr}; }
    /// May anything in it be protected at all? Quick, so that most documents are not asked zone by
    /// zone.
    virtual bool PeutEtreProtege() const { return true; }
    virtual void ParcoursZones(RecueilDeZones const& recueil) = 0;
    /// What is selected now; null for nothing with a text.
    virtual std::unique_ptr<SelectionVue> LisSelectionDuBureau() = 0;

    CarnetDeZones& Carnet() noexcept { return carnet_; }

  private:
    /// A range selected last, where the office itself selects no more than what holds it.
    struct Retenue {
        std::string cle;
        std::u16string texte;
        compagnon::Intervalle plage;
    };

    std::unique_ptr<SelectionVue> LisSelection();
    bool EstEncore(Retenue const& retenue, SelectionVue& selection) const;

    css::uno::Reference<css::frame::XModel> modele_;
    std::string cle_;
    std::size_t nombre_ = 0;
    std::uint64_t corrections_ = 0;
    CarnetDeZones carnet_;
    PileDAnnulation annulations_;
    std::optional<Retenue> retenue_;
    compagnon::NonLus nonLus_;
};

} // namespace extension
