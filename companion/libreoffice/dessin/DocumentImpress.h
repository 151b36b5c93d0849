// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "document/DocumentOuvert.h"

namespace extension {

/// A presentation or a drawing: page by page its shapes, its comments, its notes. Main thread only.
class DocumentImpress : public DocumentOuvert {
  public:
    using DocumentOuvert::DocumentOuvert;

    char const* DonneGenre() const override;

    /// Nobody is told when a program, or an undo, changes the text of a shape.
    bool DitSesChangements() const override { return false; }

  protected:
    void ParcoursZones(RecueilDeZones const& recueil) override;
    std::unique_ptr<SelectionVue> LisSelectionDuBureau() override;
};

} // namespace extension
