// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "PresentateurAlerte.h"

#include <vector>

namespace hote {

class EcritureJson;

/// Keeps the alerts of the plug-in while it lives, and answers them at once.
class AlertesNotees : public PresentateurAlerte {
  public:
    AlertesNotees()
        : precedent_(Mets(this)) {}
    ~AlertesNotees() override { Mets(precedent_); }
    AlertesNotees(AlertesNotees const&) = delete;
    AlertesNotees& operator=(AlertesNotees const&) = delete;

    eReponseAlerte Presente(QWidget* parent, DAlerteInfo const& info) override;

    bool EstVide() const noexcept { return alertes_.empty(); }
    /// Writes the alerts as an array, and forgets them.
    void Ecris(EcritureJson& json);

  private:
    PresentateurAlerte* precedent_;
    std::vector<DAlerteInfo> alertes_;
};

} // namespace hote
