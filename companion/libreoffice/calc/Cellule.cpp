// SPDX-License-Identifier: MPL-2.0
#include "Cellule.h"

#include "FormatDeNombre.h"
#include "commun/ChainesUno.h"
#include "commun/Proprietes.h"
#include "dessin/EditionEnCours.h"
#include "document/SelectionDuBureau.h"
#include "lecture/Ecritures.h"
#include "lecture/StyleDeLettres.h"
#include "partage/ErreurDuService.h"

#include <com/sun/star/beans/XMultiPropertySet.hpp>
#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/lang/XMultiServiceFactory.hpp>
#include <com/sun/star/sheet/CellFlags.hpp>
#include <com/sun/star/sheet/XCellAddressable.hpp>
#include <com/sun/star/sheet/XCellRangeData.hpp>
#include <com/sun/star/sheet/XCellRangesQuery.hpp>
#include <com/sun/star/sheet/XSheetCellRange.hpp>
#include <com/sun/star/table/XCell.hpp>
#include <com/sun/star/util/CellProtection.hpp>
#include <com/sun/star/util/XProtectable.hpp>

using namespace com::sun::star;
using rtl::OUString;

namespace extension {

namespace {

table::CellContentType Genre(uno::Reference<uno::XInterface> const& cellule) {
    return uno::Reference<table::XCell>(cellule, uno::UNO_QUERY_THROW)->getType();
}

} // namespace

std::optional<table::CellAddress> Cellule::Adresse() const {
    uno::Reference<sheet::XCellAddressable> const cellule(DonneObjet(), uno::UNO_QUERY_THROW);
    try {
        return cellule->getCellAddress();
    } catch (uno::RuntimeException const&) {
        return std::nullopt;
    }
}

uno::Reference<text::XText> Cellule::DonneTexte() const {
    // Of the cell asked for anew: the text of one that is kept goes on ending where it ended when
    // undo makes it longer.
    uno::Reference<sheet::XSheetCellRange> const cellule(DonneObjet(), uno::UNO_QUERY_THROW);
    std::optional<table::CellAddress> const adresse = Adresse();
    if (!adresse) {
        return uno::Reference<text::XText>(DonneObjet(), uno::UNO_QUERY_THROW);
    }
    return uno::Reference<text::XText>(
        cellule->getSpreadsheet()->getCellByPosition(adresse->Column, adresse->Row),
        uno::UNO_QUERY_THROW);
}

OUString Cellule::DonneTexteBrut() const {
    // The cell's own string may have a number format's words around it.
    uno::Reference<sheet::XCellRangeData> const cellule(DonneObjet(), uno::UNO_QUERY_THROW);
    OUString texte;
    cellule->getDataArray()[0][0] >>= texte;
    return texte;
}

bool Cellule::EstUniforme() const {
    uno::Reference<sheet::XCellRangesQuery> const cellule(DonneObjet(), uno::UNO_QUERY_THROW);
    return cellule->queryContentCells(sheet::CellFlags::FORMATTED)
                   ->getRangeAddresses()
                   .getLength() == 0 &&
           DonneTexteBrut().indexOf('\n') < 0;
}

ParagrapheLu Cellule::LisUniforme(OUString const& texte, std::uint16_t style) {
    ParagrapheLu lu;
    lu.plan.Ajoute(compagnon::GenrePortion::Texte, std::u16string(Vue(texte)), style);
    return lu;
}

std::vector<ParagrapheLu> Cellule::LisTout() const {
    table::CellContentType const genre = Genre(DonneObjet());
    // What a correction has emptied may be filled again.
    if (genre != table::CellContentType_TEXT && genre != table::CellContentType_EMPTY) {
        throw compagnon::ErreurDuService(contrat::Erreur::ZoneInconnue);
    }
    if (!EstUniforme()) {
        return TexteDessine::LisTout();
    }
    uno::Reference<beans::XMultiPropertySet> const format(DonneObjet(), uno::UNO_QUERY_THROW);
    uno::Sequence<uno::Any> const valeurs = format->getPropertyValues(NomsDesProprietesDeLettres());
    OUString const texte = DonneTexteBrut();
    std::vector<ParagrapheLu> lus(1);
    lus[0].plan.Ajoute(std::u16string(Vue(texte)),
                       StylesDeLettres(DonneObjet(), valeurs.getConstArray(), texte));
    return lus;
}

bool Cellule::EstProtege() const {
    uno::Reference<sheet::XSheetCellRange> const cellule(DonneObjet(), uno::UNO_QUERY_THROW);
    uno::Reference<util::XProtectable> const feuille(cellule->getSpreadsheet(),
                                                     uno::UNO_QUERY_THROW);
    if (!feuille->isProtected()) {
        return false;
    }
    uno::Reference<beans::XPropertySet> const proprietes(DonneObjet(), uno::UNO_QUERY_THROW);
    util::CellProtection protection;
    proprietes->getPropertyValue("CellProtection") >>= protection;
    return protection.IsLocked;
}

bool Cellule::EstEnFrappe() const {
    uno::Reference<sheet::XCellAddressable> const active(DonneModele()->getCurrentSelection(),
                                                         uno::UNO_QUERY);
    return active.is() && active->getCellAddress() == Adresse() &&
           EstEnTrainDeTaper(DonneModele()->getCurrentController(), Frappe::DansUneCellule);
}

std::optional<Gestes> Cellule::Remplace(std::size_t rang, std::size_t debut,
                                        std::u16string const& avant, std::u16string const& apres) {
    std::vector<ParagrapheLu> const lus = LisTout();
    auto const etapes = Prepare(lus, rang, debut, avant, apres);
    if (!etapes) {
        return std::nullopt;
    }
    std::u16string lettres;
    std::vector<std::size_t> departs;
    for (compagnon::Portion const& portion : lus[rang].plan.DonnePortions()) {
        departs.push_back(lettres.size());
        lettres += portion.source;
    }
    for (compagnon::EtapeEdition const& etape : *etapes) {
        lettres.replace(departs[etape.portion] + etape.debut, etape.fin - etape.debut, etape.ajout);
    }
    if (EstUniforme()) {
        PoseUniforme(EnUno(lettres));
        return Gestes();
    }
    // Undoing the edit of a cell with formats inside brings all its attributes back as they were
    // then, its number format before it among them.
    FormatDeNombre const format(DonneModele(), *Adresse());
    if (format.PrendPourUnNombre(EnUno(lettres))) {
        format.MetsTexte();
    }
    Fais(lus[rang], GestesPour(lus[rang], *etapes).aller);
    format.Retablis();
    return Gestes();
}

void Cellule::PoseUniforme(OUString const& lettres) {
    FormatDeNombre const format(DonneModele(), *Adresse());
    // For what looks like a number the office turns the cell's number format into the one of text:
    // it must find nothing to turn. And nothing more than that: undo of a number format takes a
    // conditional one along at times, so no step holds it.
    if (format.PrendPourUnNombre(lettres)) {
        format.MetsTexteSansEtape();
    }
    // Undone or done again the text is put in anew, and a formula if the format then lets it be.
    bool const formule =
        format.PrendPourUneFormule(lettres) || format.PrendPourUneFormule(DonneTexteBrut());
    if (formule) {
        format.AjouteEtapeAvant();
    }
    DonneTexte()->setString(lettres); // as text, whatever it looks like
    if (formule) {
        format.AjouteEtapeApres();
    }
    // The cell ends as it was but for its text.
    format.RetablisSansEtape();
}

uno::Reference<text::XTextContent> Cellule::ChampAvec(uno::Reference<text::XTextField> const& champ,
                                                      OUString const& texte) const {
    // A cell takes none but a field of its document's own making.
    uno::Reference<lang::XMultiServiceFactory> const fabrique(DonneModele(), uno::UNO_QUERY_THROW);
    uno::Reference<beans::XPropertySet> const neuf(
        fabrique->createInstance("com.sun.star.text.TextField.URL"), uno::UNO_QUERY_THROW);
    uno::Reference<beans::XPropertySet> const ancien(champ, uno::UNO_QUERY_THROW);
    for (char const* nom : {"URL", "TargetFrame"}) {
        neuf->setPropertyValue(OUString::createFromAscii(nom), Valeur(ancien, nom));
    }
    neuf->setPropertyValue("Representation", uno::Any(texte));
    return uno::Reference<text::XTextContent>(neuf, uno::UNO_QUERY_THROW);
}

void Cellule::Selectionne() {
    SelectionneDans(DonneModele(), uno::Any(DonneObjet()));
}

} // namespace extension
