// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "PresentationTexte.h"
#include "Progression.h"
#include "Sortie.h"
#include "correction/Interlocuteur.h"

#include <QHash>

namespace hote {

/// What is corrected without a person.
enum class Hardiesse {
    Rien, ///< nothing: mistakes are shown
    Sur,  ///< what an engine is sure of, with one suggestion; the same word always in the same way
    Tout, ///< all that has a suggestion, by the first
};

/// Decides without a person.
class InterlocuteurRegle : public Interlocuteur {
  public:
    /// Tells of each mistake on `sortie` unless that is null. All must outlive the object.
    InterlocuteurRegle(Hardiesse hardiesse, Sortie* sortie, PresentationTexte const& presentation,
                       Progression& progression)
        : hardiesse_(hardiesse)
        , sortie_(sortie)
        , presentation_(presentation)
        , progression_(progression) {}

    Decision Decide(Question const& question) override;
    void ApprendsIssue(FauteTraitee const& faute, bool envoyee) override;
    void ApprendsProgres(int zone, int nombreZones, int nombreFautes) override;

  private:
    bool EstSure(Faute const& faute);
    void Ecris(std::string const& texte);

    Hardiesse hardiesse_;
    Sortie* sortie_;
    PresentationTexte const& presentation_;
    Progression& progression_;
    QHash<QString, QString> choisis_; ///< the first correction of each misspelt word
};

} // namespace hote
