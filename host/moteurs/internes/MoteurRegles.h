// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "moteurs/Moteur.h"

namespace hote {

/// A few rules that need no dictionary, for French and English: words written twice, doubled
/// spaces, a space before a comma or a full stop, none behind them, words taken for others.
class MoteurRegles : public Moteur {
  public:
    /// `espacesFrancaises`: also no space before « : ; ! ? » where the country's custom has one,
    /// and the other way round; off where another engine judges them.
    explicit MoteurRegles(bool espacesFrancaises)
        : espacesFrancaises_(espacesFrancaises) {}

    QString DonneNom() const override;
    bool Juge(QString const& langue) const override;
    std::vector<Remarque> Examine(ParagrapheAExaminer const& paragraphe,
                                  Arret const& arret) override;

  private:
    bool espacesFrancaises_;
};

} // namespace hote
