// SPDX-License-Identifier: MPL-2.0
#include "Contenant.h"

#include "commun/Proprietes.h"

#include <com/sun/star/text/XTextSection.hpp>

using namespace com::sun::star;

namespace extension {

namespace {

/// Does any section around the paragraph meet the condition?
template <typename Condition>
bool UneSection(uno::Reference<beans::XPropertySet> const& paragraphe, Condition condition) {
    uno::Reference<text::XTextSection> section;
    paragraphe->getPropertyValue("TextSection") >>= section;
    for (; section.is(); section = section->getParentSection()) {
        uno::Reference<beans::XPropertySet> const proprietes(section, uno::UNO_QUERY);
        if (proprietes.is() && condition(proprietes)) {
            return true;
        }
    }
    return false;
}

} // namespace

bool Contenant::EstProtege() const {
    if (protecteur.is() && Vaut(protecteur, propriete, false)) {
        return true;
    }
    if (ancre.is() && EstDansSectionProtegee(ancre)) {
        return true;
    }
    if (feuille.is() && feuille->isProtected()) {
        return true;
    }
    return parent && parent->EstProtege();
}

bool EstDansSectionProtegee(uno::Reference<beans::XPropertySet> const& paragraphe) {
    return UneSection(paragraphe, [](uno::Reference<beans::XPropertySet> const& section) {
        return Vaut(section, "IsProtected", false);
    });
}

std::optional<compagnon::RaisonNonLu>
RaisonDeNePasLire(uno::Reference<beans::XPropertySet> const& paragraphe) {
    std::optional<compagnon::RaisonNonLu> raison;
    UneSection(paragraphe, [&](uno::Reference<beans::XPropertySet> const& section) {
        uno::Reference<uno::XInterface> index;
        section->getPropertyValue("DocumentIndex") >>= index;
        if (index.is()) {
            raison = compagnon::RaisonNonLu::Genere;
        } else if (!Vaut(section, "IsVisible", true) &&
                   !Vaut(section, "IsCurrentlyVisible", false)) {
            // A hidden section whose condition does not hold at present is in view.
            raison = compagnon::RaisonNonLu::Masque;
        }
        return raison.has_value();
    });
    return raison;
}

} // namespace extension
