// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Changements.h"
#include "DocumentOuvert.h"
#include "commun/TravailAPauses.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace extension {

/// A reading of a document's zones in pieces, so that the person can go on typing: what was read is
/// true of the document as it stands at the end. Where something changes in between, the reading
/// starts anew; where that goes on for 8 s, it is done in one piece. Main thread; operations may
/// throw UNO exceptions.
class LectureDuDocument {
  public:
    using Instant = std::chrono::steady_clock::time_point;
    /// Gets each zone as it is read.
    using Prends = std::function<void(std::shared_ptr<ZoneOuverte> const& zone,
                                      compagnon::PlanDePortions const& plan)>;

    /// `recommence`: what was given to `prends` is void. Both must outlive this.
    LectureDuDocument(std::shared_ptr<DocumentOuvert> document, Prends prends,
                      std::function<void()> recommence);
    LectureDuDocument(LectureDuDocument const&) = delete;
    LectureDuDocument& operator=(LectureDuDocument const&) = delete;
    ~LectureDuDocument();

    /// Reads until about `fin`; true once all is read. Nothing may happen in the document between
    /// that and the use of what was read.
    bool Avance(Instant fin);

    /// The selection's part in each zone read, in their order; asked once all is read.
    std::vector<std::optional<compagnon::Intervalle>> DonneSelections() const;

  private:
    void Commence();
    void Souffle(TravailAPauses::Pause const& pause) const;
    /// Changes so far.
    std::uint64_t DonneNombre() const noexcept;

    std::shared_ptr<DocumentOuvert> document_;
    Prends prends_;
    std::function<void()> recommence_;
    Changements changements_;
    std::uint64_t vus_; ///< changes up to the end of the last piece
    bool enUneFois_;
    Instant const debut_ = std::chrono::steady_clock::now();
    Instant fin_; ///< of the piece under way
    std::vector<ZoneParcourue> lues_;
    std::unique_ptr<TravailAPauses> parcours_;
};

} // namespace extension
