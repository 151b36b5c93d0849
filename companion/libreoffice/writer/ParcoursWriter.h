// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "ParagrapheWriter.h"
#include "document/CarnetDeZones.h"

#include <com/sun/star/text/XTextTable.hpp>

#include <functional>
#include <memory>
#include <set>
#include <vector>

namespace extension {

/// One walk over a Writer document in reading order: headers, the body with its tables, each
/// paragraph followed by the notes, comments and frames that hang on it, then what is anchored to
/// pages, the endnotes, the footers. Main thread; lives for one walk.
class ParcoursWriter {
  public:
    using Recueil =
        std::function<void(std::shared_ptr<ZoneOuverte> const&, compagnon::PlanDePortions&&)>;

    ParcoursWriter(std::shared_ptr<FondWriter const> fond, CarnetDeZones& carnet,
                   Recueil const& recueil);

    void Parcours();

  private:
    void ParcoursTexte(std::shared_ptr<Contenant const> const& contenant);
    void ParcoursTableau(com::sun::star::uno::Reference<com::sun::star::text::XTextTable> const& t,
                         std::shared_ptr<Contenant const> const& parent);
    void ParcoursParagraphe(
        com::sun::star::uno::Reference<com::sun::star::text::XTextContent> const& p,
        com::sun::star::uno::Reference<com::sun::star::container::XEnumerationAccess> const&
            portions,
        std::shared_ptr<Contenant const> const& contenant, int& suppressions);
    void ParcoursRencontre(
        Rencontre const& rencontre, std::shared_ptr<Contenant const> const& contenant,
        com::sun::star::uno::Reference<com::sun::star::beans::XPropertySet> const& ancre);
    void
    ParcoursCadre(com::sun::star::uno::Reference<com::sun::star::uno::XInterface> const& objet,
                  std::shared_ptr<Contenant const> const& parent,
                  com::sun::star::uno::Reference<com::sun::star::beans::XPropertySet> const& ancre);
    void ParcoursEntetes(char const* actif, char const* texte);
    void ParcoursPages();

    std::shared_ptr<FondWriter const> fond_;
    CarnetDeZones& carnet_;
    Recueil const& recueil_;
    bool aDesSections_ = false;
    bool aDesCadres_ = false;
    std::set<com::sun::star::uno::XInterface*> vus_; // frames, shapes and comments walked already
    std::vector<std::pair<Rencontre, std::shared_ptr<Contenant const>>> notesDeFin_;
};

} // namespace extension
