// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Chantier.h"

namespace hote {

/// A correction, in UTF-16 units of a zone's text as it stands after those before it.
struct CorrectionEssayee {
    int zone;
    int debut;
    int longueur;
    QString texte;
};

/// A word that may be corrected.
struct MotTrouve {
    int zone;
    int debut;
    QString mot;
};

/// Sends corrections, and compares what the document then holds with a model: its texts as they
/// were read, with the corrections made in them. What was changed is put back. Main thread.
class Essayeur {
  public:
    Essayeur(Chantier const& chantier, InterfaceAgentTexteur& agent)
        : chantier_(chantier)
        , agent_(agent) {}

    /// Reads the document as it is to be put back; false when it cannot be read.
    bool Prepare();

    /// Words of letters that the connector lets be corrected: at most `parZone` of a zone, and
    /// `nombre` in all, in the document's order.
    std::vector<MotTrouve> TrouveMots(int parZone, std::size_t nombre);

    /// Sends the corrections without reading in between, reads, compares under the rule `regle`,
    /// and puts the document back.
    void Essaie(char const* regle, std::vector<CorrectionEssayee> const& corrections);

    CollectionZonesDeTexte& DonneZones() noexcept { return zones_; }

  private:
    void Corrige(CorrectionEssayee const& correction);
    void Remets();

    Chantier const& chantier_;
    InterfaceAgentTexteur& agent_;
    CollectionZonesDeTexte zones_;
    std::vector<QString> textes_;
};

} // namespace hote
