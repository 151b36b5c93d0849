// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "ParagrapheWriter.h"
#include "document/DocumentOuvert.h"

namespace extension {

/// A Writer document (also a web or master document). Main thread only.
class DocumentWriter : public DocumentOuvert {
  public:
    DocumentWriter(css::uno::Reference<css::frame::XModel> const& modele, std::string cle);

    char const* DonneGenre() const override { return "writer"; }

  protected:
    NomDeStyle DonneStyleOrdinaire() const override { return {"ParagraphStyles", "Standard"}; }
    void ParcoursZones(RecueilDeZones const& recueil) override;
    std::unique_ptr<SelectionVue> LisSelectionDuBureau() override;

  private:
    std::shared_ptr<FondWriter const> fond_;
};

} // namespace extension
