// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "DocumentOuvert.h"
#include "ParcoursCalc.h"

namespace bureau {

/// A spreadsheet document.
class DocumentCalc : public DocumentOuvert {
  public:
    using DocumentOuvert::DocumentOuvert;

  protected:
    void ParcoursZones(Recueil const& recueil) override;
    std::unique_ptr<Choix> LisChoixDuBureau() override;

  private:
    Cellules cellules_; // met in the last walk
};

} // namespace bureau
