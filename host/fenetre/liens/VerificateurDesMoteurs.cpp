// SPDX-License-Identifier: MPL-2.0
#include "VerificateurDesMoteurs.h"

namespace hote {

VerificateurDesMoteurs::VerificateurDesMoteurs(Atelier::Reglage reglage, QObject* parent)
    : Verificateur(parent)
    , examinateur_(std::move(reglage)) {
    connect(&examinateur_, &Examinateur::RemarquesTrouvees, this, &Verificateur::Trouvees);
    connect(&examinateur_, &Examinateur::ParagrapheExamine, this, &Verificateur::Examine);
    connect(&examinateur_, &Examinateur::EtatDuMoteur, this, &VerificateurDesMoteurs::EtatDuMoteur);
}

quint64 VerificateurDesMoteurs::Demande(ParagrapheAExaminer const& paragraphe, int priorite) {
    return examinateur_.Demande(paragraphe, priorite);
}

void VerificateurDesMoteurs::Annule(quint64 jeton) {
    examinateur_.Annule(jeton);
}

} // namespace hote
