// SPDX-License-Identifier: MPL-2.0
#include "PlaceParmi.h"

#include "Curseur.h"
#include "commun/ChainesUno.h"

#include <com/sun/star/text/XTextRangeCompare.hpp>

using namespace com::sun::star;

namespace extension {

compagnon::PlaceDansPortion
PlaceParmi(std::vector<uno::Reference<text::XTextRange>> const& etendues,
           uno::Reference<text::XText> const& texte,
           uno::Reference<text::XTextRange> const& position) {
    uno::Reference<text::XTextRangeCompare> const ordre(texte, uno::UNO_QUERY_THROW);
    // The last portion that starts at or before the position; 1 means "first one starts before".
    std::size_t portion = 0;
    for (std::size_t i = 0; i < etendues.size(); ++i) {
        if (ordre->compareRegionStarts(etendues[i]->getStart(), position) < 0) {
            break;
        }
        portion = i;
    }
    if (etendues.empty() ||
        ordre->compareRegionStarts(etendues[portion]->getStart(), position) <= 0) {
        return {portion, 0};
    }
    uno::Reference<text::XTextCursor> const curseur = PlaceCurseur(texte, etendues[portion], 0);
    if (ordre->compareRegionStarts(etendues[portion]->getEnd(), position) > 0) {
        curseur->gotoRange(etendues[portion]->getEnd(), true);
    } else {
        curseur->gotoRange(position, true);
    }
    std::size_t const lettres = Vue(curseur->getString()).size();
    return {portion, lettres};
}

} // namespace extension
