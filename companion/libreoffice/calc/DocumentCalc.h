// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "ParcoursCalc.h"
#include "document/DocumentOuvert.h"

namespace extension {

/// A spreadsheet document. Main thread only.
class DocumentCalc : public DocumentOuvert {
  public:
    using DocumentOuvert::DocumentOuvert;

    char const* DonneGenre() const override { return "calc"; }

  protected:
    NomDeStyle DonneStyleOrdinaire() const override { return {"CellStyles", "Default"}; }
    bool PeutEtreProtege() const override;
    void ParcoursZones(RecueilDeZones const& recueil) override;
    std::unique_ptr<SelectionVue> LisSelectionDuBureau() override;

  private:
    Cellules cellules_; // met in the last walk
};

} // namespace extension
