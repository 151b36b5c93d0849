// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "PresentateurAlerte.h"

#include <vector>

/// Records the alerts shown while it lives, in place of windows.
class AlertesNotees : public PresentateurAlerte {
  public:
    struct Alerte {
        QWidget* parent;
        DAlerteInfo info;
    };

    AlertesNotees();
    ~AlertesNotees() override;
    AlertesNotees(AlertesNotees const&) = delete;
    AlertesNotees& operator=(AlertesNotees const&) = delete;

    eReponseAlerte Presente(QWidget* parent, DAlerteInfo const& info) override;

    std::vector<Alerte> const& Donne() const noexcept { return alertes_; }

  private:
    PresentateurAlerte* precedent_;
    std::vector<Alerte> alertes_;
};
