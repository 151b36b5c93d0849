// SPDX-License-Identifier: MPL-2.0
#include "ParcoursCalc.h"

#include "commun/ChainesUno.h"
#include "commun/Proprietes.h"
#include "dessin/ParcoursFormes.h"
#include "dessin/TexteDeForme.h"

#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/container/XNamed.hpp>
#include <com/sun/star/drawing/XDrawPagesSupplier.hpp>
#include <com/sun/star/sheet/XSheetAnnotationAnchor.hpp>
#include <com/sun/star/sheet/XSheetAnnotationShapeSupplier.hpp>
#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>

using namespace com::sun::star;
using compagnon::RaisonNonLu;

namespace extension {

namespace {

/// One number for a cell's place in the document.
std::uint64_t Place(std::int16_t feuille, std::int32_t ligne, std::int32_t colonne) {
    return (static_cast<std::uint64_t>(feuille) << 48U) |
           (static_cast<std::uint64_t>(ligne) << 20U) | static_cast<std::uint64_t>(colonne);
}

std::shared_ptr<Endroit const> EndroitDe(CaseDeFeuille const& endroit,
                                         std::shared_ptr<Endroit const> const& feuille) {
    return std::make_shared<Endroit const>(
        Endroit{Endroit::Genre::Cellule, 0, NomDeCellule(endroit.colonne, endroit.ligne), feuille});
}

} // namespace

ParcoursCalc::ParcoursCalc(uno::Reference<frame::XModel> const& modele, CarnetDeZones& carnet,
                           Cellules const& connues, RecueilDeZones const& recueil)
    : modele_(modele)
    , carnet_(carnet)
    , recueil_(recueil) {
    for (std::shared_ptr<Cellule> const& cellule : connues) {
        recueil_.Souffle();
        if (auto const adresse = cellule->Adresse()) {
            connues_.emplace(Place(adresse->Sheet, adresse->Row, adresse->Column), cellule);
        }
    }
}

Cellules ParcoursCalc::Parcours() {
    uno::Reference<sheet::XSpreadsheetDocument> const document(modele_, uno::UNO_QUERY_THROW);
    uno::Reference<container::XIndexAccess> const feuilles(document->getSheets(),
                                                           uno::UNO_QUERY_THROW);
    for (sal_Int32 i = 0; i < feuilles->getCount(); ++i) {
        uno::Reference<sheet::XSpreadsheet> const feuille(feuilles->getByIndex(i),
                                                          uno::UNO_QUERY_THROW);
        uno::Reference<beans::XPropertySet> const proprietes(feuille, uno::UNO_QUERY_THROW);
        if (Vaut(proprietes, "IsVisible", true)) {
            ParcoursFeuille(feuille, static_cast<std::int16_t>(i));
        } else {
            recueil_.Omets(RaisonNonLu::Masque, CompteTextes(feuille));
        }
    }
    return std::move(vues_);
}

void ParcoursCalc::ParcoursFeuille(Feuille const& feuille, std::int16_t numero) {
    auto contenant = std::make_shared<Contenant>();
    contenant->feuille.set(feuille, uno::UNO_QUERY_THROW);
    uno::Reference<container::XNamed> const nomme(feuille, uno::UNO_QUERY_THROW);
    contenant->endroit = std::make_shared<Endroit const>(
        Endroit{Endroit::Genre::Feuille, 0, std::u16string(Vue(nomme->getName())), nullptr});
    auto const souffle = [this] { recueil_.Souffle(); };
    LectureDeFeuille const lecture = CasesDeFeuille(feuille, souffle);
    recueil_.Omets(RaisonNonLu::Masque, lecture.masquees);
    recueil_.Omets(RaisonNonLu::Genere, lecture.generees);
    for (CaseDeFeuille const& endroit : lecture.cases) {
        souffle();
        if (endroit.estCommentaire) {
            LisCommentaire(feuille, endroit, contenant);
        } else {
            LisCellule(feuille, numero, endroit, contenant);
        }
    }
    uno::Reference<drawing::XDrawPagesSupplier> const pages(modele_, uno::UNO_QUERY_THROW);
    uno::Reference<drawing::XShapes> const formes(pages->getDrawPages()->getByIndex(numero),
                                                  uno::UNO_QUERY_THROW);
    int compte = 0;
    ParcoursFormes(formes, {modele_, carnet_, recueil_, contenant, contenant->endroit, compte});
}

void ParcoursCalc::LisCellule(Feuille const& feuille, std::int16_t numero,
                              CaseDeFeuille const& endroit,
                              std::shared_ptr<Contenant const> const& contenant) {
    auto const connue = connues_.find(Place(numero, endroit.ligne, endroit.colonne));
    std::shared_ptr<Cellule> cellule = connue == connues_.end() ? nullptr : connue->second;
    if (!cellule) {
        uno::Reference<uno::XInterface> const objet(
            feuille->getCellByPosition(endroit.colonne, endroit.ligne), uno::UNO_QUERY_THROW);
        cellule = std::make_shared<Cellule>(objet, modele_);
        carnet_.Inscris(objet, cellule);
    }
    carnet_.Retrouve<Cellule>(cellule->DonneObjet()); // it is still there
    vues_.push_back(cellule);
    std::vector<ParagrapheLu> lus;
    if (endroit.estUniforme) {
        lus.push_back(Cellule::LisUniforme(endroit.texte, endroit.style));
        cellule->Accueille(lus, carnet_);
    } else {
        lus = cellule->Relis(carnet_);
    }
    RecueilleZones(*cellule, std::move(lus), EndroitDe(endroit, contenant->endroit), recueil_);
}

void ParcoursCalc::LisCommentaire(Feuille const& feuille, CaseDeFeuille const& endroit,
                                  std::shared_ptr<Contenant const> const& contenant) {
    uno::Reference<table::XCell> const cellule =
        feuille->getCellByPosition(endroit.colonne, endroit.ligne);
    uno::Reference<sheet::XSheetAnnotationAnchor> const ancre(cellule, uno::UNO_QUERY_THROW);
    uno::Reference<sheet::XSheetAnnotationShapeSupplier> const commentaire(ancre->getAnnotation(),
                                                                           uno::UNO_QUERY);
    if (!commentaire.is()) {
        return;
    }
    uno::Reference<uno::XInterface> const forme(commentaire->getAnnotationShape(), uno::UNO_QUERY);
    if (forme.is()) {
        ParcoursTexteDessine(
            forme, [&] { return TexteDeForme(forme, cellule, modele_, contenant); },
            std::make_shared<Endroit const>(Endroit{
                Endroit::Genre::Commentaire, 0, {}, EndroitDe(endroit, contenant->endroit)}),
            carnet_, recueil_);
    }
}

} // namespace extension
