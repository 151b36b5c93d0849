// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "fenetre/modele/Verificateur.h"
#include "moteurs/Examinateur.h"

namespace hote {

/// The engines of this system at work for a review.
class VerificateurDesMoteurs : public Verificateur {
    Q_OBJECT

  public:
    explicit VerificateurDesMoteurs(Atelier::Reglage reglage, QObject* parent = nullptr);

    quint64 Demande(ParagrapheAExaminer const& paragraphe, int priorite) override;
    void Annule(quint64 jeton) override;

  Q_SIGNALS:
    void EtatDuMoteur(QString moteur, hote::EtatMoteur etat, QString message);

  private:
    Examinateur examinateur_;
};

} // namespace hote
