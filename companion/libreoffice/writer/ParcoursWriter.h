// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "ParagrapheWriter.h"
#include "commun/Objets.h"
#include "document/CarnetDeZones.h"
#include "document/RecueilDeZones.h"

#include <com/sun/star/text/XTextTable.hpp>

#include <memory>
#include <utility>
#include <vector>

namespace extension {

/// One walk over a Writer document in reading order: headers, the body with its tables, each
/// paragraph followed by the notes, comments and frames that hang on it, then what is anchored to
/// pages, the endnotes, the footers. Main thread; lives for one walk.
class ParcoursWriter {
  public:
    ParcoursWriter(std::shared_ptr<FondWriter const> fond, CarnetDeZones& carnet,
                   RecueilDeZones const& recueil);

    void Parcours();

  private:
    void ParcoursTexte(std::shared_ptr<Contenant const> const& contenant);
    void ParcoursTableau(css::uno::Reference<css::text::XTextTable> const& t,
                         std::shared_ptr<Contenant const> const& parent);
    void ParcoursParagraphe(css::uno::Reference<css::text::XTextContent> const& p,
                            css::uno::Reference<css::container::XEnumerationAccess> const& portions,
                            std::shared_ptr<Contenant const> const& contenant, int rang,
                            int& suppressions);
    void ParcoursRencontre(Rencontre const& rencontre,
                           std::shared_ptr<Contenant const> const& contenant,
                           css::uno::Reference<css::beans::XPropertySet> const& ancre);
    void ParcoursCadre(css::uno::Reference<css::uno::XInterface> const& objet,
                       std::shared_ptr<Contenant const> const& parent,
                       css::uno::Reference<css::beans::XPropertySet> const& ancre);
    void ParcoursEntetes(Endroit::Genre genre, char const* actif, char const* texte);
    void ParcoursPages();

    std::shared_ptr<FondWriter const> fond_;
    CarnetDeZones& carnet_;
    RecueilDeZones const& recueil_;
    bool aDesSections_ = false;
    bool aDesCadres_ = false;
    int notes_ = 0; // met so far, as the next three
    int finales_ = 0;
    int commentaires_ = 0;
    int formes_ = 0;
    Objets vus_; // frames, shapes and comments walked already
    std::vector<std::pair<Rencontre, std::shared_ptr<Contenant const>>> notesDeFin_;
};

} // namespace extension
