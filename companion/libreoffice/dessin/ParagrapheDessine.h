// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "TexteDessine.h"

namespace extension {

/// One paragraph of a text of the drawing engine. Main thread only.
class ParagrapheDessine : public ZoneOuverte {
  public:
    ParagrapheDessine(std::string cle, std::weak_ptr<TexteDessine> texte, CarnetDeZones& carnet);

    compagnon::PlanDePortions Lis() override;
    bool EstProtegee() override;
    bool EstEnFrappe() override { return DonneTexte()->EstEnFrappe(); }
    bool PermetsRetour() const override { return false; }
    void Applique(CorrectionPrete const& correction) override;
    void Selectionne(compagnon::PlanDePortions const& plan, std::size_t debut,
                     std::size_t fin) override;

    /// The text that it is a paragraph of; throws `compagnon::ErreurDuService` when that has left
    /// the document.
    std::shared_ptr<TexteDessine> DonneTexte() const;

  private:
    std::weak_ptr<TexteDessine> texte_; // which owns this zone
    CarnetDeZones& carnet_;
    std::size_t rang_ = 0; // since the last reading
};

/// The text that the zone is a paragraph of; null for another kind of zone. Throws
/// `compagnon::ErreurDuService` when that text has left the document. Main thread.
std::shared_ptr<TexteDessine> TexteDe(ZoneOuverte& zone);

} // namespace extension
