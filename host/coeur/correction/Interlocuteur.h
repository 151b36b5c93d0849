// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Bilan.h"

namespace hote {

/// A mistake to decide on.
struct Question {
    int zone;
    int nombreZones;
    QString const& texte; ///< the zone's text now
    Faute const& faute;   ///< in that text, with what may stand in its place
};

/// What to do about a mistake.
struct Decision {
    enum class Genre {
        Corrige,     ///< put `remplacement` in its place
        Laisse,      ///< leave it
        CorrigeTout, ///< the same, and from now on wherever the same is wrong in the same way
        LaisseTout,  ///< leave it, and the same word from now on
        Retour,      ///< undo what was decided before this one, and ask about that again
        Quitte,      ///< leave it, and everything behind it
    };
    Genre genre;
    QString remplacement;
};

/// Decides on mistakes and is told how the work goes: a person at a terminal, or a rule.
class Interlocuteur {
  public:
    virtual ~Interlocuteur() = default;
    virtual Decision Decide(Question const& question) = 0;
    /// The correction just decided was sent, or refused.
    virtual void ApprendsIssue(FauteTraitee const& faute, bool envoyee) = 0;
    /// The work has reached a zone, after so many mistakes.
    virtual void ApprendsProgres(int zone, int nombreZones, int nombreFautes) = 0;
};

} // namespace hote
