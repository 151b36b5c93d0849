// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "CarnetDeZones.h"
#include "modele/Intervalle.h"

#include <memory>
#include <optional>
#include <utility>

namespace extension {

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
                                                      compagnon::PlanDePortions const& plan) = 0;

    /// The zone where it starts, if that can be told without a walk over the document; or null.
    virtual std::shared_ptr<ZoneOuverte> Premiere(CarnetDeZones& carnet) = 0;

    /// Does it go on in other zones? Asked only where `Premiere` told the first one.
    virtual bool Deborde() = 0;

    /// Is all that the office knows that one thing is selected (a cell, a shape), which holds the
    /// zone? A part of its text cannot be selected from outside then, only remembered.
    virtual bool EstEntier(ZoneOuverte& /*zone*/) { return false; }
};

/// A range that a caller selected in such a thing, as long as that one stays selected.
class SelectionRetenue : public SelectionVue {
  public:
    SelectionRetenue(std::shared_ptr<ZoneOuverte> zone, compagnon::Intervalle plage)
        : zone_(std::move(zone))
        , plage_(plage) {}

    std::optional<compagnon::Intervalle> Dans(ZoneOuverte& zone,
                                              compagnon::PlanDePortions const& /*plan*/) override {
        return &zone == zone_.get() ? std::make_optional(plage_) : std::nullopt;
    }
    std::shared_ptr<ZoneOuverte> Premiere(CarnetDeZones& /*carnet*/) override { return zone_; }
    bool Deborde() override { return false; }

  private:
    std::shared_ptr<ZoneOuverte> zone_;
    compagnon::Intervalle plage_;
};

} // namespace extension
