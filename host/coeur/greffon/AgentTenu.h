// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "CollectionZonesDeTexte.h"
#include "InterfaceAgentTexteur.h"

#include <memory>

namespace hote {

/// An agent and the zones that it handed out, which end in that order's reverse: zones use their
/// agent to the last. The plug-in must outlive both. Main thread.
class AgentTenu {
  public:
    AgentTenu() = default;
    ~AgentTenu() { Detruis(); }
    AgentTenu(AgentTenu const&) = delete;
    AgentTenu& operator=(AgentTenu const&) = delete;

    /// Holds `agent` (not null) in place of the one held before, which is destroyed with its zones.
    void Tiens(std::unique_ptr<InterfaceAgentTexteur> agent) {
        Detruis();
        agent_ = std::move(agent);
    }

    /// Destroys the zones, then the agent; nothing when none is held.
    void Detruis() noexcept {
        zones_.Vide();
        agent_.reset();
    }

    /// Null when none is held.
    InterfaceAgentTexteur* DonneAgent() const noexcept { return agent_.get(); }
    CollectionZonesDeTexte& DonneZones() noexcept { return zones_; }

  private:
    std::unique_ptr<InterfaceAgentTexteur> agent_;
    CollectionZonesDeTexte zones_;
};

} // namespace hote
