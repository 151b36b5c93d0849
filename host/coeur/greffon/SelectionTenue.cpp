// SPDX-License-Identifier: MPL-2.0
#include "SelectionTenue.h"

#include "OuvreAgent.h"

namespace hote {

SelectionTenue::SelectionTenue(Greffon const& greffon, QString const& id) {
    tenu_.Tiens(OuvreAgent(greffon, id, ModeAgent::Dictionnaire));
}

SelectionTenue::~SelectionTenue() {
    try {
        tenu_.DonneAgent()->RompsLienTexteur();
    } catch (...) { // NOLINT(bugprone-empty-catch): the link ends anyway, with the agent
    }
}

QString SelectionTenue::DonneTitre() {
    return tenu_.DonneAgent()->DonneTitreDocument().VersQString();
}

} // namespace hote
