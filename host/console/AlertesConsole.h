// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "greffon/PresentateurImmediat.h"

namespace hote {

/// Prints the alerts of plug-ins on standard error while it lives. Main thread.
class AlertesConsole : public PresentateurImmediat {
  private:
    void Recois(DAlerteInfo const& info) override;
};

} // namespace hote
