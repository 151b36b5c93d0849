// SPDX-License-Identifier: MPL-2.0
#include "CasesDeFeuille.h"

#include "commun/ChainesUno.h"
#include "lecture/Ecritures.h"
#include "lecture/StyleDeLettres.h"

#include <com/sun/star/beans/XMultiPropertySet.hpp>
#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/sheet/CellFlags.hpp>
#include <com/sun/star/sheet/XCellRangeAddressable.hpp>
#include <com/sun/star/sheet/XCellRangeData.hpp>
#include <com/sun/star/sheet/XCellRangesQuery.hpp>
#include <com/sun/star/sheet/XDataPilotTable.hpp>
#include <com/sun/star/sheet/XDataPilotTablesSupplier.hpp>
#include <com/sun/star/sheet/XSheetCellCursor.hpp>
#include <com/sun/star/sheet/XUniqueCellFormatRangesSupplier.hpp>
#include <com/sun/star/table/XColumnRowRange.hpp>
#include <com/sun/star/util/CellProtection.hpp>
#include <com/sun/star/util/XMergeable.hpp>
#include <com/sun/star/util/XProtectable.hpp>

#include <algorithm>
#include <map>
#include <set>
#include <tuple>
#include <utility>

using namespace com::sun::star;
using rtl::OUString;
using Adresses = uno::Sequence<table::CellRangeAddress>;

namespace extension {

namespace {

constexpr sal_Int32 kCasesDUnBloc = 4'000; // cells: a few milliseconds

sal_Int32 Lignes(table::CellRangeAddress const& plage) {
    return std::max<sal_Int32>(1, kCasesDUnBloc / (plage.EndColumn - plage.StartColumn + 1));
}

/// The same cells in ranges of a few milliseconds each.
std::vector<table::CellRangeAddress> Coupees(std::vector<table::CellRangeAddress> const& plages) {
    std::vector<table::CellRangeAddress> coupees;
    for (table::CellRangeAddress plage : plages) {
        sal_Int32 const fin = plage.EndRow;
        while (plage.StartRow <= fin) {
            plage.EndRow = std::min(fin, plage.StartRow + Lignes(plage) - 1);
            coupees.push_back(plage);
            plage.StartRow = plage.EndRow + 1;
        }
    }
    return coupees;
}

/// The ranges, those of the same columns that stand close together in one block: each block is read
/// at once, as an office object for each range would take far longer than a few cells in between.
std::vector<std::vector<table::CellRangeAddress>>
Blocs(std::vector<table::CellRangeAddress> const& plages) {
    constexpr sal_Int32 kEcart = 8; // rows in between, so that no more than that is read in vain
    std::vector<table::CellRangeAddress> triees = Coupees(plages);
    std::sort(triees.begin(), triees.end(), [](auto const& a, auto const& b) {
        return std::tie(a.StartColumn, a.EndColumn, a.StartRow) <
               std::tie(b.StartColumn, b.EndColumn, b.StartRow);
    });
    std::vector<std::vector<table::CellRangeAddress>> blocs;
    for (table::CellRangeAddress const& plage : triees) {
        bool const suite = !blocs.empty() && blocs.back().back().StartColumn == plage.StartColumn &&
                           blocs.back().back().EndColumn == plage.EndColumn &&
                           plage.StartRow - blocs.back().back().EndRow <= kEcart &&
                           plage.EndRow - blocs.back().front().StartRow < Lignes(plage);
        if (!suite) {
            blocs.emplace_back();
        }
        blocs.back().push_back(plage);
    }
    return blocs;
}

std::uint32_t Etendue(Adresses const& plages) {
    std::uint32_t nombre = 0;
    for (table::CellRangeAddress const& plage : plages) {
        nombre += static_cast<std::uint32_t>((plage.EndRow - plage.StartRow + 1) *
                                             (plage.EndColumn - plage.StartColumn + 1));
    }
    return nombre;
}

/// Collects what one sheet has to read.
class Recolte {
  public:
    Recolte(uno::Reference<sheet::XSpreadsheet> const& feuille,
            std::function<void()> const& souffle)
        : souffle_(souffle)
        , feuille_(feuille)
        , requete_(feuille, uno::UNO_QUERY_THROW) {
        uno::Reference<util::XProtectable> const protection(feuille, uno::UNO_QUERY_THROW);
        protegee_ = protection->isProtected();
        uno::Reference<util::XMergeable> const fusion(feuille, uno::UNO_QUERY_THROW);
        fusionnee_ = fusion->getIsMerged(); // any of its cells
    }

    LectureDeFeuille Fais() {
        LisPivots();
        for (table::CellRangeAddress const& plage :
             requete_->queryContentCells(sheet::CellFlags::FORMATTED)->getRangeAddresses()) {
            for (sal_Int32 ligne = plage.StartRow; ligne <= plage.EndRow; ++ligne) {
                souffle_();
                for (sal_Int32 colonne = plage.StartColumn; colonne <= plage.EndColumn; ++colonne) {
                    formatees_.emplace(ligne, colonne);
                }
            }
        }
        for (std::vector<table::CellRangeAddress> const& bloc :
             Blocs(Visibles(sheet::CellFlags::STRING))) {
            souffle_();
            LisTextes(bloc);
        }
        auto const lues = static_cast<std::uint32_t>(cases_.size());
        for (table::CellRangeAddress const& plage : Visibles(sheet::CellFlags::ANNOTATION)) {
            for (sal_Int32 ligne = plage.StartRow; ligne <= plage.EndRow; ++ligne) {
                for (sal_Int32 colonne = plage.StartColumn; colonne <= plage.EndColumn; ++colonne) {
                    cases_.push_back({ligne, colonne, true, false, 0, OUString()});
                }
            }
        }
        std::sort(cases_.begin(), cases_.end(), [](CaseDeFeuille const& a, CaseDeFeuille const& b) {
            return std::tie(a.ligne, a.colonne, a.estCommentaire) <
                   std::tie(b.ligne, b.colonne, b.estCommentaire);
        });
        std::uint32_t const tous = CompteTextes(feuille_);
        std::uint32_t const dites = lues + generees_ + vides_;
        return {std::move(cases_), tous - std::min(tous, dites), generees_};
    }

  private:
    struct Format {
        bool seLit = true;
        std::uint16_t style = 0;
    };

    /// The visible cells of a kind. In this order, as among the cells of a kind the office does not
    /// tell all that are visible; and less the hidden columns, which it then takes for visible at
    /// times.
    std::vector<table::CellRangeAddress> Visibles(sal_Int32 genre) {
        uno::Reference<sheet::XCellRangesQuery> const visibles(requete_->queryVisibleCells(),
                                                               uno::UNO_QUERY_THROW);
        std::vector<table::CellRangeAddress> plages;
        for (table::CellRangeAddress plage :
             visibles->queryContentCells(static_cast<sal_Int16>(genre))->getRangeAddresses()) {
            souffle_();
            sal_Int32 const fin = plage.EndColumn;
            for (sal_Int32 colonne = plage.StartColumn; colonne <= fin; ++colonne) {
                if (!EstVisible(colonne)) {
                    continue;
                }
                plage.StartColumn = colonne;
                while (colonne < fin && EstVisible(colonne + 1)) {
                    ++colonne;
                }
                plage.EndColumn = colonne;
                plages.push_back(plage);
            }
        }
        return plages;
    }

    bool EstVisible(sal_Int32 colonne) {
        auto const connue = colonnesVisibles_.find(colonne);
        if (connue != colonnesVisibles_.end()) {
            return connue->second;
        }
        uno::Reference<table::XColumnRowRange> const feuille(feuille_, uno::UNO_QUERY_THROW);
        uno::Reference<beans::XPropertySet> const proprietes(
            feuille->getColumns()->getByIndex(colonne), uno::UNO_QUERY_THROW);
        bool visible = true;
        proprietes->getPropertyValue("IsVisible") >>= visible;
        return colonnesVisibles_[colonne] = visible;
    }

    void LisPivots() {
        uno::Reference<sheet::XDataPilotTablesSupplier> const source(feuille_, uno::UNO_QUERY);
        uno::Reference<container::XIndexAccess> const pivots(
            source.is() ? source->getDataPilotTables() : uno::Reference<sheet::XDataPilotTables>(),
            uno::UNO_QUERY);
        for (sal_Int32 i = 0; pivots.is() && i < pivots->getCount(); ++i) {
            uno::Reference<sheet::XDataPilotTable> const pivot(pivots->getByIndex(i),
                                                               uno::UNO_QUERY_THROW);
            pivots_.push_back(pivot->getOutputRange());
        }
    }

    void LisTextes(std::vector<table::CellRangeAddress> const& bloc) {
        table::CellRangeAddress tout = bloc.front();
        tout.EndRow = bloc.back().EndRow;
        uno::Reference<table::XCellRange> const cellules = feuille_->getCellRangeByPosition(
            tout.StartColumn, tout.StartRow, tout.EndColumn, tout.EndRow);
        uno::Reference<sheet::XCellRangeData> const donnees(cellules, uno::UNO_QUERY_THROW);
        uno::Sequence<uno::Sequence<uno::Any>> const valeurs = donnees->getDataArray();
        auto const largeur = static_cast<std::size_t>(tout.EndColumn - tout.StartColumn) + 1;
        std::vector<Format> const formats = LisFormats(cellules, tout, largeur);
        for (table::CellRangeAddress const& plage : bloc) {
            for (sal_Int32 ligne = plage.StartRow; ligne <= plage.EndRow; ++ligne) {
                souffle_();
                sal_Int32 const rang = ligne - tout.StartRow;
                for (sal_Int32 colonne = plage.StartColumn; colonne <= plage.EndColumn; ++colonne) {
                    sal_Int32 const i = colonne - tout.StartColumn;
                    LisTexte(ligne, colonne, valeurs[rang][i],
                             formats[static_cast<std::size_t>(rang) * largeur +
                                     static_cast<std::size_t>(i)]);
                }
            }
        }
    }

    void LisTexte(sal_Int32 ligne, sal_Int32 colonne, uno::Any const& valeur,
                  Format const& format) {
        OUString texte;
        if (!format.seLit || !(valeur >>= texte)) {
            return;
        }
        if (texte.isEmpty()) { // a text all the same; filled and undone, it would be none
            ++vides_;
        } else if (EstDansUnPivot(ligne, colonne)) {
            ++generees_;
        } else {
            bool const uniforme = formatees_.count({ligne, colonne}) == 0 &&
                                  texte.indexOf('\n') < 0 && EstToutLatin(Vue(texte));
            cases_.push_back({ligne, colonne, false, uniforme, format.style, texte});
        }
    }

    /// The format of each cell of the range, row by row.
    std::vector<Format> LisFormats(uno::Reference<table::XCellRange> const& cellules,
                                   table::CellRangeAddress const& plage,
                                   std::size_t largeur) const {
        std::vector<Format> formats(largeur *
                                    (static_cast<std::size_t>(plage.EndRow - plage.StartRow) + 1));
        if (formats.size() == 1) {
            formats[0] = LisFormat(cellules, plage);
            return formats;
        }
        uno::Reference<sheet::XUniqueCellFormatRangesSupplier> const source(cellules,
                                                                            uno::UNO_QUERY_THROW);
        uno::Reference<container::XIndexAccess> const groupes = source->getUniqueCellFormatRanges();
        for (sal_Int32 i = 0; i < groupes->getCount(); ++i) {
            souffle_();
            uno::Reference<sheet::XSheetCellRanges> const groupe(groupes->getByIndex(i),
                                                                 uno::UNO_QUERY_THROW);
            Adresses const parts = groupe->getRangeAddresses();
            if (parts.getLength() == 0) {
                continue;
            }
            Format const format = LisFormat(groupe, parts[0]);
            for (table::CellRangeAddress const& part : parts) {
                for (sal_Int32 ligne = part.StartRow; ligne <= part.EndRow; ++ligne) {
                    auto const debut =
                        formats.begin() +
                        (ligne - plage.StartRow) * static_cast<std::ptrdiff_t>(largeur) +
                        (part.StartColumn - plage.StartColumn);
                    std::fill_n(debut, part.EndColumn - part.StartColumn + 1, format);
                }
            }
        }
        return formats;
    }

    /// `exemple`: some of the cells, all of one format. Being covered by a merged cell is one too.
    Format LisFormat(uno::Reference<uno::XInterface> const& cellules,
                     table::CellRangeAddress const& exemple) const {
        Format format;
        uno::Reference<beans::XMultiPropertySet> const proprietes(cellules, uno::UNO_QUERY_THROW);
        uno::Sequence<uno::Any> const valeurs = proprietes->getPropertyValues(noms_);
        format.style = StyleDeLettres(valeurs.getConstArray());
        if (protegee_) {
            uno::Reference<beans::XPropertySet> const une(cellules, uno::UNO_QUERY_THROW);
            util::CellProtection protection;
            une->getPropertyValue("CellProtection") >>= protection;
            format.seLit = !protection.IsHidden;
        }
        if (fusionnee_ && format.seLit) {
            uno::Reference<sheet::XSheetCellRange> const cellule(
                feuille_->getCellRangeByPosition(exemple.StartColumn, exemple.StartRow,
                                                 exemple.StartColumn, exemple.StartRow),
                uno::UNO_QUERY_THROW);
            uno::Reference<sheet::XSheetCellCursor> const curseur =
                feuille_->createCursorByRange(cellule);
            curseur->collapseToMergedArea();
            uno::Reference<sheet::XCellRangeAddressable> const ou(curseur, uno::UNO_QUERY_THROW);
            table::CellRangeAddress const fusion = ou->getRangeAddress();
            format.seLit =
                fusion.StartColumn == exemple.StartColumn && fusion.StartRow == exemple.StartRow;
        }
        return format;
    }

    bool EstDansUnPivot(sal_Int32 ligne, sal_Int32 colonne) const {
        return std::any_of(pivots_.begin(), pivots_.end(), [&](table::CellRangeAddress const& p) {
            return ligne >= p.StartRow && ligne <= p.EndRow && colonne >= p.StartColumn &&
                   colonne <= p.EndColumn;
        });
    }

    std::function<void()> const& souffle_;
    uno::Reference<sheet::XSpreadsheet> feuille_;
    uno::Reference<sheet::XCellRangesQuery> requete_;
    bool protegee_;
    bool fusionnee_;
    uno::Sequence<OUString> noms_ = NomsDesProprietesDeLettres();
    std::map<sal_Int32, bool> colonnesVisibles_; // those asked for
    std::vector<table::CellRangeAddress> pivots_;
    std::set<std::pair<sal_Int32, sal_Int32>> formatees_; // of several formats or lines
    std::vector<CaseDeFeuille> cases_;
    std::uint32_t generees_ = 0;
    std::uint32_t vides_ = 0;
};

} // namespace

std::uint32_t CompteTextes(uno::Reference<sheet::XSpreadsheet> const& feuille) {
    uno::Reference<sheet::XCellRangesQuery> const requete(feuille, uno::UNO_QUERY_THROW);
    return Etendue(requete->queryContentCells(static_cast<sal_Int16>(sheet::CellFlags::STRING))
                       ->getRangeAddresses());
}

LectureDeFeuille CasesDeFeuille(uno::Reference<sheet::XSpreadsheet> const& feuille,
                                std::function<void()> const& souffle) {
    return Recolte(feuille, souffle).Fais();
}

} // namespace extension
