// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "ChaineTemplateAvecAttributs.h"
#include "Faute.h"

#include <vector>

namespace hote {

/// Finds the mistakes of texts: the seam to the engines.
class Examen {
  public:
    using Plages = std::vector<sdd::PlageAttribut>;

    virtual ~Examen() = default;
    /// The text will be asked about soon: the work may begin. Never waits; of no effect when it has
    /// been told before.
    virtual void Prevois(QString const& texte, Plages const& plages) = 0;
    /// The mistakes of a text with its style runs, in order, none touching another. Waits for them,
    /// for a bounded time.
    virtual std::vector<Faute> Cherche(QString const& texte, Plages const& plages) = 0;
};

} // namespace hote
