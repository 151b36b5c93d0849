// SPDX-License-Identifier: MPL-2.0
#include "EditionEnCours.h"

#include "commun/CommandeDuBureau.h"

#include <com/sun/star/drawing/XShapes.hpp>

using namespace com::sun::star;

namespace extension {

bool EstEnTrainDeTaper(uno::Reference<frame::XController> const& vue, Frappe frappe) {
    // The office says nowhere that letters are being typed, but does some things only then: raise
    // letters in a cell, put a special one into a shape.
    return CommandeDuBureau(vue, frappe == Frappe::DansUneCellule ? "SuperScript" : "InsertSymbol")
        .EstPossible();
}

void QuitteLesFormes(uno::Reference<frame::XModel> const& modele) {
    // Once to end the typing in a shape, once to let go of the shape.
    for (int fois = 0; fois < 2; ++fois) {
        uno::Reference<drawing::XShapes> const formes(modele->getCurrentSelection(),
                                                      uno::UNO_QUERY);
        if (!formes.is()) {
            return;
        }
        CommandeDuBureau(modele->getCurrentController(), "Escape").Execute();
    }
}

} // namespace extension
