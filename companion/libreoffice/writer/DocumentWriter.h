// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "DocumentOuvert.h"
#include "ParagrapheWriter.h"

namespace bureau {

/// A Writer document (also a web or master document).
class DocumentWriter : public DocumentOuvert {
  public:
    DocumentWriter(com::sun::star::uno::Reference<com::sun::star::frame::XModel> const& modele,
                   std::string cle);

  protected:
    void ParcoursZones(Recueil const& recueil) override;
    std::unique_ptr<Choix> LisChoixDuBureau() override;

  private:
    std::shared_ptr<FondWriter const> fond_;
};

} // namespace bureau
