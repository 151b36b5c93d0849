// SPDX-License-Identifier: MPL-2.0
#include "SelectionWriter.h"

#include "ParagrapheWriter.h"
#include "commun/ChainesUno.h"
#include "commun/Proprietes.h"
#include "dessin/SelectionDessinee.h"

#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/text/XTextCursor.hpp>
#include <com/sun/star/text/XTextRangeCompare.hpp>
#include <com/sun/star/text/XTextTable.hpp>
#include <com/sun/star/text/XTextTableCursor.hpp>
#include <com/sun/star/text/XTextViewCursorSupplier.hpp>

#include <algorithm>
#include <optional>
#include <utility>

using namespace com::sun::star;
using compagnon::Intervalle;

namespace extension {

namespace {

/// The paragraph's own object, the one that enumerations give too.
uno::Reference<uno::XInterface> ParagrapheEn(uno::Reference<text::XTextRange> const& position) {
    uno::Reference<beans::XPropertySet> const proprietes(position, uno::UNO_QUERY);
    uno::Reference<uno::XInterface> paragraphe;
    Valeur(proprietes, "TextParagraph") >>= paragraphe;
    return Identite(paragraphe);
}

/// From a place in one paragraph to a place in the same or a later one.
class SelectionDePlage : public SelectionVue {
  public:
    SelectionDePlage(uno::Reference<text::XTextRange> const& debut,
                     uno::Reference<text::XTextRange> const& fin)
        : debut_(debut)
        , fin_(fin)
        , objetDebut_(ParagrapheEn(debut))
        , objetFin_(ParagrapheEn(fin)) {}

    bool EstComplet() const { return objetDebut_.is() && objetFin_.is(); }

    std::optional<Intervalle> Dans(ZoneOuverte& zone, TexteDeZone const& texte) override {
        auto* const paragraphe = finie_ ? nullptr : dynamic_cast<ParagrapheWriter*>(&zone);
        if (paragraphe == nullptr) {
            return std::nullopt;
        }
        bool const debute = !commencee_ && paragraphe->EstCelleDe(objetDebut_);
        bool const finit = (commencee_ || debute) && paragraphe->EstCelleDe(objetFin_);
        commencee_ = commencee_ || debute;
        finie_ = finit;
        if (!commencee_ || !(debute || finit || paragraphe->EstVoisineDe(objetDebut_))) {
            return std::nullopt;
        }
        std::size_t const bout = texte.DonneTaille();
        return Intervalle{static_cast<std::int32_t>(
                              debute ? texte.DonneDecalage(paragraphe->PlaceDe(debut_)) : 0),
                          static_cast<std::int32_t>(
                              finit ? texte.DonneDecalage(paragraphe->PlaceDe(fin_)) : bout)};
    }

    std::shared_ptr<ZoneOuverte> Premiere(CarnetDeZones& carnet) override {
        return carnet.Retrouve<ZoneOuverte>(objetDebut_);
    }

    bool Deborde() override { return objetDebut_ != objetFin_; }

  private:
    uno::Reference<text::XTextRange> debut_;
    uno::Reference<text::XTextRange> fin_;
    uno::Reference<uno::XInterface> objetDebut_;
    uno::Reference<uno::XInterface> objetFin_;
    bool commencee_ = false;
    bool finie_ = false;
};

/// Where a cell stands, from a name such as "B3"; columns count A to Z, then a to z, then AA.
std::optional<std::pair<int, int>> PlaceDeCellule(std::u16string_view nom) {
    int colonne = 0;
    std::size_t i = 0;
    for (; i < nom.size() && (nom[i] >= u'A' && nom[i] <= u'z'); ++i) {
        colonne = colonne * 52 + (nom[i] <= u'Z' ? nom[i] - u'A' : nom[i] - u'a' + 26) + 1;
    }
    int ligne = 0;
    for (; i < nom.size() && nom[i] >= u'0' && nom[i] <= u'9'; ++i) {
        ligne = ligne * 10 + (nom[i] - u'0');
    }
    // Cells that were split have longer names: their place is another cell's.
    return i < nom.size() && nom[i] != u'.' ? std::nullopt
                                            : std::make_optional(std::make_pair(colonne, ligne));
}

/// Whole cells of a table.
class SelectionDansUnTableau : public SelectionVue {
  public:
    SelectionDansUnTableau(uno::Reference<text::XTextTable> const& tableau,
                           std::u16string_view plage) {
        std::size_t const milieu = std::min(plage.find(u':'), plage.size());
        auto const un = PlaceDeCellule(plage.substr(0, milieu));
        auto const autre = milieu < plage.size() ? PlaceDeCellule(plage.substr(milieu + 1)) : un;
        for (rtl::OUString const& nom : tableau->getCellNames()) {
            auto const ici = PlaceDeCellule(Vue(nom));
            if (un && autre && ici && EstEntre(ici->first, un->first, autre->first) &&
                EstEntre(ici->second, un->second, autre->second)) {
                cellules_.Ajoute(tableau->getCellByName(nom));
            }
        }
    }

    std::optional<Intervalle> Dans(ZoneOuverte& zone, TexteDeZone const& texte) override {
        auto* const paragraphe = dynamic_cast<ParagrapheWriter*>(&zone);
        if (paragraphe == nullptr || !paragraphe->EstDans(cellules_)) {
            return std::nullopt;
        }
        return Tout(texte);
    }

    std::shared_ptr<ZoneOuverte> Premiere(CarnetDeZones& /*carnet*/) override { return nullptr; }
    bool Deborde() override { return true; }

  private:
    static bool EstEntre(int valeur, int a, int b) {
        return std::min(a, b) <= valeur && valeur <= std::max(a, b);
    }

    Objets cellules_;
};

std::unique_ptr<SelectionVue> LisTableau(uno::Reference<frame::XModel> const& modele,
                                         uno::Reference<text::XTextTableCursor> const& cellules) {
    // The cells do not say of which table they are; the caret does.
    uno::Reference<text::XTextViewCursorSupplier> const vue(modele->getCurrentController(),
                                                            uno::UNO_QUERY_THROW);
    uno::Reference<beans::XPropertySet> const curseur(vue->getViewCursor(), uno::UNO_QUERY_THROW);
    uno::Reference<text::XTextTable> tableau;
    curseur->getPropertyValue("TextTable") >>= tableau;
    if (!tableau.is()) {
        return nullptr;
    }
    return std::make_unique<SelectionDansUnTableau>(tableau, Vue(cellules->getRangeName()));
}

} // namespace

std::unique_ptr<SelectionVue> LisSelectionWriter(uno::Reference<frame::XModel> const& modele) {
    uno::Reference<uno::XInterface> const selection = modele->getCurrentSelection();
    if (auto formes = SelectionDeFormes(selection)) {
        return formes;
    }
    uno::Reference<text::XTextTableCursor> const cellules(selection, uno::UNO_QUERY);
    if (cellules.is()) {
        return LisTableau(modele, cellules);
    }
    uno::Reference<container::XIndexAccess> const choix(selection, uno::UNO_QUERY);
    if (!choix.is() || choix->getCount() == 0) {
        return nullptr;
    }
    uno::Reference<text::XTextRange> const etendue(choix->getByIndex(0), uno::UNO_QUERY);
    uno::Reference<text::XText> const texte =
        etendue.is() ? etendue->getText() : uno::Reference<text::XText>();
    if (!texte.is()) {
        return nullptr;
    }
    uno::Reference<text::XTextRange> debut(
        texte->createTextCursorByRange(etendue->getStart()).get());
    uno::Reference<text::XTextRange> fin(texte->createTextCursorByRange(etendue->getEnd()).get());
    // A selection made backwards has its point first.
    uno::Reference<text::XTextRangeCompare> const ordre(texte, uno::UNO_QUERY_THROW);
    if (ordre->compareRegionStarts(debut, fin) < 0) {
        std::swap(debut, fin);
    }
    auto plage = std::make_unique<SelectionDePlage>(debut, fin);
    return plage->EstComplet() ? std::move(plage) : nullptr;
}

} // namespace extension
