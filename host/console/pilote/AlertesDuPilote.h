// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "greffon/PresentateurImmediat.h"

#include <vector>

namespace hote {

class EcritureJson;

/// Keeps the alerts of the plug-in while it lives, for the answer to the request. Main thread.
class AlertesDuPilote : public PresentateurImmediat {
  public:
    bool EstVide() const noexcept { return alertes_.empty(); }
    /// Writes the alerts as an array, and forgets them.
    void Ecris(EcritureJson& json);

  private:
    void Recois(DAlerteInfo const& info) override { alertes_.push_back(info); }

    std::vector<DAlerteInfo> alertes_;
};

} // namespace hote
