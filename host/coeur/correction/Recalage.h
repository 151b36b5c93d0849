// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace hote {

/// Where the zones of a document are after it was read anew: it may have gained, lost or changed
/// some meanwhile.
class Recalage {
  public:
    /// The texts of the zones before and now; not kept.
    Recalage(std::vector<QString> const& anciens, std::vector<QString> const& nouveaux);

    /// The new rank of the zone that stood at `rang`: where both lists agree from the beginning or
    /// from the end, where its text stands in each of them once between those, or where as many
    /// zones as before stand between two that were found. Nothing when none of this tells: it is
    /// not guessed.
    std::optional<int> Retrouve(int rang) const;

    /// Are both lists the same?
    bool EstInchange() const noexcept { return inchange_; }

  private:
    void TrouveTextesUniques(std::vector<QString> const& anciens,
                             std::vector<QString> const& nouveaux, int debut, int finAncien,
                             int finNouveau);
    void CombleEntre(int precedent, int suivant, int placeSuivante);

    std::vector<int> places_; ///< new ranks, -1 for none
    bool inchange_;
};

} // namespace hote
