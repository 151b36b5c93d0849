// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "ZoneOuverte.h"
#include "modele/NonLus.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <utility>

namespace extension {

/// Gets the zones of a document one after the other, each with what it holds now, from a walk over
/// it; and is told what has none. Main thread.
class RecueilDeZones {
  public:
    using Prends =
        std::function<void(std::shared_ptr<ZoneOuverte> const&, compagnon::PlanDePortions&&)>;

    /// `nonLus` counts what is left out, and must outlive this. `souffle` may leave the walk for a
    /// while; empty for one that is not to be left.
    RecueilDeZones(Prends prends, compagnon::NonLus& nonLus,
                   std::function<void()> souffle = nullptr)
        : prends_(std::move(prends))
        , nonLus_(nonLus)
        , souffle_(std::move(souffle)) {}

    void operator()(std::shared_ptr<ZoneOuverte> const& zone,
                    compagnon::PlanDePortions&& plan) const {
        prends_(zone, std::move(plan));
    }

    void Omets(compagnon::RaisonNonLu raison, std::uint32_t nombre = 1) const {
        nonLus_.Note(raison, nombre);
    }

    /// To be called often, wherever a walk may be left: it holds nothing of a portion then. What
    /// the document is like afterwards is as before, or the walk is not gone on with.
    void Souffle() const {
        if (souffle_) {
            souffle_();
        }
    }

  private:
    Prends prends_;
    compagnon::NonLus& nonLus_;
    std::function<void()> souffle_;
};

} // namespace extension
