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

SelectionTenue::Etat SelectionTenue::Lis() {
    Etat etat;
    etat.texte = tenu_.DonneAgent()->DonneContexte(&etat.debut, &etat.fin).VersQString();
    return etat;
}

bool SelectionTenue::Remplace(Etat const& attendu, int debut, int fin, QString const& texte) {
    if (!(Lis() == attendu)) {
        return false;
    }
    if (debut != attendu.debut || fin != attendu.fin) {
        tenu_.DonneAgent()->AjusteSelectionPourOutils(debut - attendu.debut, fin - attendu.fin);
        if (!(Lis() == Etat{attendu.texte, debut, fin})) {
            return false;
        }
    }
    tenu_.DonneAgent()->RemplaceEtReselectionne(UniChaine(texte));
    // That call is not waited for: what the document then shows is the answer.
    QString apres = attendu.texte;
    apres.replace(debut, fin - debut, texte);
    return Lis().texte == apres;
}

} // namespace hote
