// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "DocumentOuvert.h"

namespace bureau {

/// A presentation or a drawing: page by page its shapes, its comments, its notes.
class DocumentImpress : public DocumentOuvert {
  public:
    using DocumentOuvert::DocumentOuvert;

  protected:
    void ParcoursZones(Recueil const& recueil) override;
    std::unique_ptr<Choix> LisChoixDuBureau() override;
};

} // namespace bureau
