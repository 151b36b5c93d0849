// SPDX-License-Identifier: MPL-2.0
#include "SelectionCalc.h"

#include "dessin/ParagrapheDessine.h"
#include "dessin/SelectionDessinee.h"

#include <com/sun/star/sheet/XCellRangeAddressable.hpp>
#include <com/sun/star/sheet/XSheetCellRanges.hpp>
#include <com/sun/star/table/XCell.hpp>

#include <algorithm>

using namespace com::sun::star;
using compagnon::Intervalle;

namespace extension {

namespace {

class SelectionDeCellules : public SelectionVue {
  public:
    SelectionDeCellules(uno::Sequence<table::CellRangeAddress> const& plages,
                        Cellules const& cellules)
        : plages_(plages)
        , cellules_(cellules) {}

    std::optional<Intervalle> Dans(ZoneOuverte& zone, TexteDeZone const& texte) override {
        auto const cellule = CelluleDe(zone);
        if (!cellule || !Contient(*cellule)) {
            return std::nullopt;
        }
        return Tout(texte);
    }

    std::shared_ptr<ZoneOuverte> Premiere(CarnetDeZones& /*carnet*/) override {
        // Of several cells only a walk knows which have a text now.
        auto const trouvee = EstSeule() ? std::find_if(cellules_.begin(), cellules_.end(),
                                                       [&](auto const& c) { return Contient(*c); })
                                        : cellules_.end();
        if (trouvee == cellules_.end() || (*trouvee)->DonneZones().empty()) {
            return nullptr;
        }
        deborde_ = (*trouvee)->DonneZones().size() > 1;
        return (*trouvee)->DonneZones().front();
    }

    bool Deborde() override { return deborde_; }

    bool EstEntier(ZoneOuverte& zone) override {
        auto const cellule = CelluleDe(zone);
        return EstSeule() && cellule && Contient(*cellule);
    }

  private:
    static std::shared_ptr<Cellule> CelluleDe(ZoneOuverte& zone) {
        return std::dynamic_pointer_cast<Cellule>(TexteDe(zone));
    }

    bool EstSeule() const {
        return plages_.getLength() == 1 && plages_[0].StartColumn == plages_[0].EndColumn &&
               plages_[0].StartRow == plages_[0].EndRow;
    }

    bool Contient(Cellule const& cellule) const {
        auto const ou = cellule.Adresse();
        return ou &&
               std::any_of(plages_.begin(), plages_.end(), [&](table::CellRangeAddress const& p) {
                   return p.Sheet == ou->Sheet && p.StartColumn <= ou->Column &&
                          ou->Column <= p.EndColumn && p.StartRow <= ou->Row && ou->Row <= p.EndRow;
               });
    }

    uno::Sequence<table::CellRangeAddress> plages_;
    Cellules const& cellules_;
    bool deborde_ = false;
};

} // namespace

std::unique_ptr<SelectionVue> LisSelectionCalc(uno::Reference<frame::XModel> const& modele,
                                               Cellules const& cellules) {
    uno::Reference<uno::XInterface> const selection = modele->getCurrentSelection();
    uno::Reference<table::XCell> const cellule(selection, uno::UNO_QUERY);
    if (cellule.is() && cellule->getType() != table::CellContentType_TEXT) {
        return nullptr;
    }
    uno::Reference<sheet::XCellRangeAddressable> const plage(selection, uno::UNO_QUERY);
    if (plage.is()) {
        table::CellRangeAddress const adresse = plage->getRangeAddress();
        return std::make_unique<SelectionDeCellules>(
            uno::Sequence<table::CellRangeAddress>(&adresse, 1), cellules);
    }
    uno::Reference<sheet::XSheetCellRanges> const plages(selection, uno::UNO_QUERY);
    if (plages.is()) {
        return std::make_unique<SelectionDeCellules>(plages->getRangeAddresses(), cellules);
    }
    return SelectionDeFormes(selection);
}

} // namespace extension
