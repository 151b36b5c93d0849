// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Bilan.h"
#include "Explication.h"
#include "Recalage.h"

#include <map>
#include <vector>

namespace hote {

/// The corrections sent since the document was last read. Nobody answers a correction: only the
/// document, read again, shows whether it was made.
class Envois {
  public:
    /// A correction: `rang` is its mistake's in the result; `remplacement` stands in the zone's
    /// text as we believe it to be now, behind all those before it in that zone.
    void Ajoute(std::size_t rang, int zone, Remplacement remplacement) {
        Zone& z = zones_[zone];
        z.rangs.push_back(rang);
        z.remplacements.push_back(std::move(remplacement));
    }

    bool EstVide() const noexcept { return zones_.empty(); }

    /// Settles all of them against the document read again, and forgets them: `anciens` is what we
    /// believed, `nouveaux` what it holds.
    void Verifie(Recalage const& recalage, std::vector<QString> const& anciens,
                 std::vector<QString> const& nouveaux, Bilan& bilan);

    /// The document cannot be read again: tells so of all of them, and forgets them.
    void Abandonne(Bilan& bilan);

  private:
    struct Zone {
        std::vector<std::size_t> rangs;
        std::vector<Remplacement> remplacements;
    };
    static std::vector<bool> DonneFaits(Zone const& zone, QString const& cru, QString const& reel);

    std::map<int, Zone> zones_;
};

} // namespace hote
