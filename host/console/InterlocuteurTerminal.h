// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "PresentationTexte.h"
#include "Progression.h"
#include "Sortie.h"
#include "correction/Interlocuteur.h"

#include <istream>
#include <optional>

namespace hote {

/// Asks the person at the terminal what to do about each mistake.
class InterlocuteurTerminal : public Interlocuteur {
  public:
    /// Takes answers by a key each, texts from `entree` by lines; its end means to quit. All must
    /// outlive the object.
    InterlocuteurTerminal(std::istream& entree, Sortie& sortie,
                          PresentationTexte const& presentation, Progression& progression)
        : entree_(entree)
        , sortie_(sortie)
        , presentation_(presentation)
        , progression_(progression) {}

    Decision Decide(Question const& question) override;
    void ApprendsIssue(FauteTraitee const& faute, bool envoyee) override;
    void ApprendsProgres(int zone, int nombreZones, int nombreFautes) override;

  private:
    std::optional<Decision> Comprends(QString const& touche, QStringList const& suggestions);
    static std::string DonneInvite(int choix);
    std::optional<Decision> DemandeTexte();

    std::istream& entree_;
    Sortie& sortie_;
    PresentationTexte const& presentation_;
    Progression& progression_;
};

} // namespace hote
