// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Couleurs.h"
#include "correction/Bilan.h"
#include "correction/Interlocuteur.h"

#include <string>

namespace hote {

/// How mistakes and results are told to a person. Each text is UTF-8 and
/// ends in a line feed.
class PresentationTexte {
  public:
    explicit PresentationTexte(Couleurs const& couleurs)
        : couleurs_(couleurs) {}

    /// The mistake in its context, after the number of its place, and why it is one.
    std::string DonneFaute(Question const& question) const;
    /// The suggestions in one line.
    std::string DonneSuggestions(QStringList const& suggestions) const;
    /// The suggestions, numbered.
    std::string DonneChoix(QStringList const& suggestions) const;
    /// What each key does, a line each.
    static std::string DonneAideDesTouches();
    /// What became of the correction just decided.
    std::string DonneIssue(FauteTraitee const& faute, bool envoyee) const;
    /// How far the work is; without a line feed.
    static std::string DonneProgres(int zone, int nombreZones, int nombreFautes);
    /// The end: how many mistakes became what. `change` tells whether anything was to be changed.
    std::string DonneFin(Bilan const& bilan, bool change) const;

  private:
    std::string DonneRaison(Faute const& faute) const;

    Couleurs couleurs_;
};

} // namespace hote
