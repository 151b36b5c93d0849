// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "document/Endroit.h"

#include <string>
#include <utility>
#include <vector>

namespace extension {

/// Where the zones that a caller was given stand. Collected on the main thread; the words are found
/// on any, as those of sixty thousand cells take a quarter of a second.
class NomsDeZones {
  public:
    void Ajoute(std::string zone, Lieu lieu) {
        lieux_.emplace_back(std::move(zone), std::move(lieu));
    }
    /// The reply of "DonneNomsDeZones". Throws `TropGrand`. Any thread.
    std::string EnJson() const;

  private:
    std::vector<std::pair<std::string, Lieu>> lieux_; ///< by zone key
};

} // namespace extension
