// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "PresentationTexte.h"
#include "Progression.h"
#include "Sortie.h"
#include "correction/Interlocuteur.h"

namespace hote {

/// Decides without a person: takes the first suggestion, or leaves everything as it is.
class InterlocuteurRegle : public Interlocuteur {
  public:
    /// Tells of each mistake on `sortie` unless that is null. All must outlive the object.
    InterlocuteurRegle(bool corrige, Sortie* sortie, PresentationTexte const& presentation,
                       Progression& progression)
        : corrige_(corrige)
        , sortie_(sortie)
        , presentation_(presentation)
        , progression_(progression) {}

    Decision Decide(Question const& question) override;
    void ApprendsIssue(FauteTraitee const& faute, bool envoyee) override;
    void ApprendsProgres(int zone, int nombreZones, int nombreFautes) override;

  private:
    void Ecris(std::string const& texte);

    bool corrige_;
    Sortie* sortie_;
    PresentationTexte const& presentation_;
    Progression& progression_;
};

} // namespace hote
