// SPDX-License-Identifier: MPL-2.0
#include "FormatDeNombre.h"

#include "commun/ChainesUno.h"
#include "commun/Proprietes.h"
#include "document/EtapePropre.h"
#include "lecture/Ecritures.h"

#include <com/sun/star/beans/XPropertyState.hpp>
#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>
#include <com/sun/star/table/XCellRange.hpp>
#include <com/sun/star/util/NotNumericException.hpp>
#include <com/sun/star/util/NumberFormat.hpp>
#include <com/sun/star/util/XNumberFormatTypes.hpp>
#include <com/sun/star/util/XNumberFormatsSupplier.hpp>
#include <com/sun/star/util/XNumberFormatter.hpp>

using namespace com::sun::star;
using rtl::OUString;

namespace extension {

namespace {

bool EstHerite(uno::Reference<beans::XPropertySet> const& cellule) {
    uno::Reference<beans::XPropertyState> const etats(cellule, uno::UNO_QUERY_THROW);
    return etats->getPropertyState("NumberFormat") == beans::PropertyState_DEFAULT_VALUE;
}

} // namespace

FormatDeNombre::FormatDeNombre(uno::Reference<frame::XModel> const& modele,
                               table::CellAddress const& adresse)
    : modele_(modele)
    , adresse_(adresse) {
    uno::Reference<beans::XPropertySet> const cellule = DonneCellule();
    format_ = cellule->getPropertyValue("NumberFormat");
    herite_ = EstHerite(cellule);
}

uno::Reference<beans::XPropertySet> FormatDeNombre::DonneCellule() const {
    uno::Reference<sheet::XSpreadsheetDocument> const document(modele_, uno::UNO_QUERY_THROW);
    uno::Reference<container::XIndexAccess> const feuilles(document->getSheets(),
                                                           uno::UNO_QUERY_THROW);
    uno::Reference<table::XCellRange> const feuille(feuilles->getByIndex(adresse_.Sheet),
                                                    uno::UNO_QUERY_THROW);
    return uno::Reference<beans::XPropertySet>(
        feuille->getCellByPosition(adresse_.Column, adresse_.Row), uno::UNO_QUERY_THROW);
}

uno::Reference<util::XNumberFormats> FormatDeNombre::DonneFormats() const {
    return uno::Reference<util::XNumberFormatsSupplier>(modele_, uno::UNO_QUERY_THROW)
        ->getNumberFormats();
}

bool FormatDeNombre::PrendPourUneFormule(OUString const& texte) const {
    if (!texte.startsWith("=")) {
        return false;
    }
    sal_Int32 cle = 0;
    sal_Int16 genre = 0;
    format_ >>= cle;
    Valeur(DonneFormats()->getByKey(cle), "Type") >>= genre;
    return (genre & util::NumberFormat::TEXT) == 0;
}

bool FormatDeNombre::PrendPourUnNombre(OUString const& texte) const {
    if (PrendPourUneFormule(texte)) {
        return true;
    }
    uno::Reference<util::XNumberFormatter> const lecteur(
        ServiceDuBureau("com.sun.star.util.NumberFormatter"), uno::UNO_QUERY_THROW);
    lecteur->attachNumberFormatsSupplier(
        uno::Reference<util::XNumberFormatsSupplier>(modele_, uno::UNO_QUERY_THROW));
    sal_Int32 cle = 0;
    format_ >>= cle;
    try {
        lecteur->convertStringToNumber(cle, texte);
        return true;
    } catch (util::NotNumericException const&) {
        return false;
    }
}

void FormatDeNombre::MetsTexte() const {
    uno::Reference<util::XNumberFormatTypes> const formats(DonneFormats(), uno::UNO_QUERY_THROW);
    DonneCellule()->setPropertyValue(
        "NumberFormat",
        uno::Any(formats->getStandardFormat(util::NumberFormat::TEXT, lang::Locale())));
}

void FormatDeNombre::Retablis() const {
    uno::Reference<beans::XPropertySet> const cellule = DonneCellule();
    if (!herite_) {
        if (cellule->getPropertyValue("NumberFormat") != format_) {
            cellule->setPropertyValue("NumberFormat", format_);
        }
    } else if (!EstHerite(cellule)) {
        uno::Reference<beans::XPropertyState>(cellule, uno::UNO_QUERY_THROW)
            ->setPropertyToDefault("NumberFormat");
    }
}

void FormatDeNombre::MetsTexteSansEtape() const {
    SansEtape const sans(modele_);
    MetsTexte();
}

void FormatDeNombre::RetablisSansEtape() const {
    SansEtape const sans(modele_);
    Retablis();
}

void FormatDeNombre::AjouteEtapeAvant() const {
    AjouteEtape(modele_, {}, [ici = *this](bool aLEnvers) {
        aLEnvers ? ici.RetablisSansEtape() : ici.MetsTexteSansEtape();
    });
}

void FormatDeNombre::AjouteEtapeApres() const {
    AjouteEtape(modele_, {}, [ici = *this](bool aLEnvers) {
        aLEnvers ? ici.MetsTexteSansEtape() : ici.RetablisSansEtape();
    });
}

} // namespace extension
