// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Endroit.h"
#include "Inscrit.h"
#include "modele/PlanDePortions.h"

#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace extension {

/// A correction whose every condition has been checked.
struct CorrectionPrete {
    std::size_t debut = 0; ///< in the zone's text
    std::u16string avant;  ///< what stands there
    std::u16string apres;  ///< what is to stand there
    std::u16string nom;    ///< the undo step's, in the user's language
    std::vector<compagnon::EtapeEdition> etapes;
};

/// One paragraph of an open document, as long as it lives there. Main thread only. Every operation
/// may throw a UNO exception, or `compagnon::ErreurDuService` when the paragraph has left the
/// document.
class ZoneOuverte : public Inscrit {
  public:
    explicit ZoneOuverte(std::string cle)
        : cle_(std::move(cle)) {}

    void Quitte(CarnetDeZones& carnet) override;

    /// The `idZone` of the wire; opaque.
    std::string const& DonneCle() const noexcept { return cle_; }

    /// Where the last walk over the document found it.
    Lieu const& DonneLieu() const noexcept { return lieu_; }
    void MetsLieu(Lieu lieu) noexcept { lieu_ = std::move(lieu); }

    /// The paragraph as it stands now. `Applique` and `Selectionne` refer to this plan's portions:
    /// they are called before anything else happens in the document. Nothing of the office's that
    /// belongs to a portion is kept: they find it anew.
    virtual compagnon::PlanDePortions Lis() = 0;

    /// Is it protected from typing (section, cell, frame)? Says nothing of the whole document.
    virtual bool EstProtegee() = 0;

    /// Is the person typing in it, where what was typed takes its place at the end whatever was
    /// done to it meanwhile? Not so in Writer's own texts.
    virtual bool EstEnFrappe() { return false; }

    /// Can a person start a new line in it?
    virtual bool PermetsRetour() const { return true; }

    /// Carries out a correction of the last plan read.
    virtual void Applique(CorrectionPrete const& correction) = 0;

    /// Selects the range of the last plan read and brings it into view.
    virtual void Selectionne(compagnon::PlanDePortions const& plan, std::size_t debut,
                             std::size_t fin) = 0;

  private:
    std::string cle_;
    Lieu lieu_;
};

} // namespace extension
