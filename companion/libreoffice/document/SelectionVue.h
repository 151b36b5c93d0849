// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "CarnetDeZones.h"
#include "modele/Intervalle.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>

namespace extension {

/// What a selection asks of the text of a zone. Main thread; lives for one question.
class TexteDeZone {
  public:
    /// Of a plan just read, which must outlive this.
    explicit TexteDeZone(compagnon::PlanDePortions const& plan)
        : taille_(plan.DonneTexte().size())
        , plan_(&plan) {}
    /// Of a zone that has not changed since it was read, which is read again where need be.
    TexteDeZone(ZoneOuverte& zone, std::size_t taille)
        : taille_(taille)
        , zone_(&zone) {}

    /// UTF-16 units.
    std::size_t DonneTaille() const noexcept { return taille_; }
    std::size_t DonneDecalage(compagnon::PlaceDansPortion place) const {
        return plan_ != nullptr ? plan_->DonneDecalage(place) : zone_->Lis().DonneDecalage(place);
    }

  private:
    std::size_t taille_;
    compagnon::PlanDePortions const* plan_ = nullptr;
    ZoneOuverte* zone_ = nullptr;
};

/// What is selected in a document at one moment. Main thread; lives for one look at it.
class SelectionVue {
  public:
    SelectionVue() = default;
    SelectionVue(SelectionVue const&) = delete;
    SelectionVue& operator=(SelectionVue const&) = delete;
    virtual ~SelectionVue() = default;

    /// The part of it in a zone just read; nothing when it does not reach there. Asked zone after
    /// zone in reading order, or of the first one alone.
    virtual std::optional<compagnon::Intervalle> Dans(ZoneOuverte& zone,
                                                      TexteDeZone const& texte) = 0;

    /// The zone where it starts, if that can be told without a walk over the document; or null.
    virtual std::shared_ptr<ZoneOuverte> Premiere(CarnetDeZones& carnet) = 0;

    /// Does it go on in other zones? Asked only where `Premiere` told the first one.
    virtual bool Deborde() = 0;

    /// Is all that the office knows that one thing is selected (a cell, a shape), which holds the
    /// zone? A part of its text cannot be selected from outside then, only remembered.
    virtual bool EstEntier(ZoneOuverte& /*zone*/) { return false; }

  protected:
    /// The part in a zone that is selected whole.
    static compagnon::Intervalle Tout(TexteDeZone const& texte) {
        return {0, static_cast<std::int32_t>(texte.DonneTaille())};
    }
};

} // namespace extension
