// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "ClesVivantes.h"
#include "document/LectureDuDocument.h"
#include "modele/EcrivainZones.h"
#include "partage/Appelants.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace extension {

/// The zones that a caller is given, to be written for it: pure data, for any one thread at a time.
struct ZonesARendre {
    struct Zone {
        std::string cle;
        compagnon::TextePartage texte;
        compagnon::Intervalle selection;
        std::vector<compagnon::PlageDeStyle> styles;
    };
    std::vector<Zone> zones;
    std::size_t octets = 0; ///< what they take in the reply, at most

    /// The zone document. Throws `compagnon::ErreurDuService`.
    std::string EnJson() const;
};

/// One "SynchronisePositions" on its way. Main thread; operations may throw
/// `compagnon::ErreurDuService` or a UNO exception, and the caller was given nothing then.
class Synchronisation {
  public:
    /// `appelants` must outlive this.
    Synchronisation(std::shared_ptr<DocumentOuvert> document,
                    std::shared_ptr<ClesVivantes const> vivantes, compagnon::Appelants& appelants,
                    std::string appelant);

    /// Reads until about `fin`; true once all is read.
    bool Avance(LectureDuDocument::Instant fin);
    /// Gives the caller what was read; right after `Avance` has told that all is.
    ZonesARendre Rends();

  private:
    void Prends(std::shared_ptr<ZoneOuverte> const& zone, compagnon::PlanDePortions const& plan);
    void Recommence();

    std::shared_ptr<DocumentOuvert> document_;
    std::shared_ptr<ClesVivantes const> vivantes_;
    compagnon::Appelants& appelants_;
    std::string appelant_;
    std::uint8_t langue_; ///< the document's own
    compagnon::DocumentDonne donne_;
    ZonesARendre lues_;
    LectureDuDocument lecture_;
};

} // namespace extension
