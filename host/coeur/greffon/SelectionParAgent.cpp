// SPDX-License-Identifier: MPL-2.0
#include "SelectionParAgent.h"

namespace hote {

SelectionParAgent::Etat SelectionParAgent::Lis() {
    Etat etat;
    etat.texte = agent_.DonneContexte(&etat.debut, &etat.fin).VersQString();
    return etat;
}

bool SelectionParAgent::Remplace(Etat const& attendu, int debut, int fin, QString const& texte) {
    if (!(Lis() == attendu)) {
        return false;
    }
    if (debut != attendu.debut || fin != attendu.fin) {
        agent_.AjusteSelectionPourOutils(debut - attendu.debut, fin - attendu.fin);
        if (!(Lis() == Etat{attendu.texte, debut, fin})) {
            return false;
        }
    }
    agent_.RemplaceEtReselectionne(UniChaine(texte));
    // That call is not waited for: what the document then shows is the answer.
    QString apres = attendu.texte;
    apres.replace(debut, fin - debut, texte);
    return Lis().texte == apres;
}

} // namespace hote
