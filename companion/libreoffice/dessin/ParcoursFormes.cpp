// SPDX-License-Identifier: MPL-2.0
#include "ParcoursFormes.h"

#include "TexteDeForme.h"
#include "commun/ChainesUno.h"
#include "commun/Proprietes.h"

#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/container/XNamed.hpp>
#include <com/sun/star/lang/XServiceInfo.hpp>
#include <com/sun/star/table/XCellRange.hpp>
#include <com/sun/star/table/XColumnRowRange.hpp>
#include <com/sun/star/table/XMergeableCell.hpp>
#include <com/sun/star/table/XTable.hpp>

using namespace com::sun::star;

namespace extension {

namespace {

/// `objet`: whose text it is; known again by itself, which its text alone would not be.
void LisTexte(uno::Reference<uno::XInterface> const& objet,
              uno::Reference<uno::XInterface> const& porteur,
              std::shared_ptr<Endroit const> const& endroit, FondDeFormes const& fond) {
    uno::Reference<text::XText> const texte(objet, uno::UNO_QUERY);
    if (texte.is() && !texte->getString().isEmpty()) {
        ParcoursTexteDessine(
            objet, [&] { return TexteDeForme(objet, porteur, fond.modele, fond.contenant); },
            endroit, fond.carnet, fond.recueil);
    }
}

void LisTableau(uno::Reference<table::XTable> const& tableau,
                uno::Reference<uno::XInterface> const& forme,
                std::shared_ptr<Endroit const> const& endroit, FondDeFormes const& fond) {
    for (sal_Int32 ligne = 0; ligne < tableau->getRowCount(); ++ligne) {
        fond.recueil.Souffle();
        for (sal_Int32 colonne = 0; colonne < tableau->getColumnCount(); ++colonne) {
            uno::Reference<table::XCell> const cellule = tableau->getCellByPosition(colonne, ligne);
            uno::Reference<table::XMergeableCell> const fusion(cellule, uno::UNO_QUERY);
            if (!fusion.is() || !fusion->isMerged()) { // covered by another one
                LisTexte(
                    cellule, forme,
                    std::make_shared<Endroit const>(Endroit{Endroit::Genre::CelluleDeTableau, 0,
                                                            NomDeCellule(colonne, ligne), endroit}),
                    fond);
            }
        }
    }
}

/// What a person calls a shape: by its own name where it has one, else by `numero`.
std::shared_ptr<Endroit const> EndroitDeForme(uno::Reference<uno::XInterface> const& forme,
                                              Endroit::Genre genre, int numero,
                                              std::shared_ptr<Endroit const> const& autour) {
    uno::Reference<lang::XServiceInfo> const services(forme, uno::UNO_QUERY);
    if (services.is() && services->supportsService("com.sun.star.presentation.TitleTextShape")) {
        genre = Endroit::Genre::Titre;
    }
    uno::Reference<container::XNamed> const nomme(forme, uno::UNO_QUERY);
    return std::make_shared<Endroit const>(
        Endroit{genre, numero, std::u16string(nomme.is() ? Vue(nomme->getName()) : u""), autour});
}

void LisForme(uno::Reference<uno::XInterface> const& forme, FondDeFormes const& fond) {
    uno::Reference<beans::XPropertySet> const proprietes(forme, uno::UNO_QUERY);
    uno::Reference<lang::XServiceInfo> const services(forme, uno::UNO_QUERY);
    // A placeholder shows an invitation that nobody typed; a cell's comment is read with its cell.
    // From LibreOffice 24.8 on a slide's comment has a shape too, a marker with its number.
    if (Vaut(proprietes, "IsEmptyPresentationObject", false) ||
        (services.is() && (services->supportsService("com.sun.star.sheet.CellAnnotationShape") ||
                           services->supportsService("com.sun.star.drawing.AnnotationShape")))) {
        return;
    }
    if (!Vaut(proprietes, "Visible", true)) {
        uno::Reference<text::XText> const texte(forme, uno::UNO_QUERY);
        if (texte.is() && !texte->getString().isEmpty()) {
            fond.recueil.Omets(compagnon::RaisonNonLu::Masque);
        }
        return;
    }
    uno::Reference<drawing::XShapes> const groupe(forme, uno::UNO_QUERY);
    if (groupe.is()) {
        ParcoursFormes(groupe, fond);
        return;
    }
    ++fond.compte;
    // On a slide a table does not name its service; and to ask an embedded document for its model
    // would load it.
    uno::Reference<table::XTable> tableau;
    if (proprietes.is() &&
        proprietes->getPropertySetInfo()->hasPropertyByName("UseFirstRowStyle")) {
        proprietes->getPropertyValue("Model") >>= tableau;
    }
    if (tableau.is()) {
        LisTableau(tableau, forme,
                   EndroitDeForme(forme, Endroit::Genre::Tableau, fond.compte, fond.page), fond);
    } else {
        LisTexte(forme, forme, EndroitDeForme(forme, Endroit::Genre::Forme, fond.compte, fond.page),
                 fond);
    }
}

} // namespace

void ParcoursFormes(uno::Reference<drawing::XShapes> const& formes, FondDeFormes const& fond) {
    for (sal_Int32 i = 0; i < formes->getCount(); ++i) {
        fond.recueil.Souffle();
        LisForme(uno::Reference<uno::XInterface>(formes->getByIndex(i), uno::UNO_QUERY), fond);
    }
}

} // namespace extension
