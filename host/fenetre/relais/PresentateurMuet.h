// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "greffon/PresentateurImmediat.h"

namespace hote {

/// Answers the alerts of plug-ins at once: the window says itself what cannot be done.
class PresentateurMuet : public PresentateurImmediat {
  private:
    void Recois(DAlerteInfo const& /*info*/) override {}
};

} // namespace hote
