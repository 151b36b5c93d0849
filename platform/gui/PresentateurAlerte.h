// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "DAlerte.h"

/// Shows alerts in place of the modal window: a console prints them, a test records them.
class VOCALYNE_GUI PresentateurAlerte {
  public:
    virtual ~PresentateurAlerte();

    /// Shows one alert and returns the answer once it is given. `parent` may be null. Called on the
    /// thread that called `DAlerte`.
    virtual eReponseAlerte Presente(QWidget* parent, DAlerteInfo const& info) = 0;

    /// Makes `presentateur` (not owned; null for the modal window) the one in use, for the whole
    /// process, and returns the one before. It must outlive its use. Main thread.
    static PresentateurAlerte* Mets(PresentateurAlerte* presentateur);
};
