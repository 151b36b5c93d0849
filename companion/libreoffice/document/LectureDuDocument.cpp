// SPDX-License-Identifier: MPL-2.0
#include "LectureDuDocument.h"

#include <cstddef>
#include <utility>

namespace extension {

namespace {
// A person's typing has pauses longer than a reading takes; callers wait 20 s and more.
constexpr std::chrono::seconds kPatience{8};
constexpr std::size_t kBeaucoup = 1'000; // zones
} // namespace

LectureDuDocument::LectureDuDocument(std::shared_ptr<DocumentOuvert> document, Prends prends,
                                     std::function<void()> recommence)
    : document_(std::move(document))
    , prends_(std::move(prends))
    , recommence_(std::move(recommence))
    , changements_(document_->DonneModele())
    , vus_(DonneNombre())
    , enUneFois_(!document_->DitSesChangements()) {
    Commence();
}

LectureDuDocument::~LectureDuDocument() = default;

void LectureDuDocument::Commence() {
    lues_.clear();
    parcours_ = std::make_unique<TravailAPauses>([this](TravailAPauses::Pause const& pause) {
        document_->Parcours(
            [this](std::shared_ptr<ZoneOuverte> const& zone, compagnon::PlanDePortions&& plan) {
                prends_(zone, plan);
                lues_.push_back({zone, plan.DonneTexte().size()});
            },
            [this, &pause] { Souffle(pause); });
        if (!enUneFois_ && lues_.size() > kBeaucoup) {
            pause(); // what is done with them all at the end has a piece of its own
        }
    });
}

void LectureDuDocument::Souffle(TravailAPauses::Pause const& pause) const {
    if (!enUneFois_ && std::chrono::steady_clock::now() >= fin_) {
        pause();
    }
}

std::uint64_t LectureDuDocument::DonneNombre() const noexcept {
    return changements_.DonneNombre() + document_->DonneCorrections();
}

bool LectureDuDocument::Avance(Instant fin) {
    if (DonneNombre() != vus_) {
        // Nothing that stands on the walk's stack is looked at again: it may be of what is not
        // there any more.
        parcours_.reset();
        enUneFois_ = std::chrono::steady_clock::now() - debut_ >= kPatience;
        recommence_();
        Commence();
    }
    fin_ = fin;
    bool const fini = parcours_->Avance();
    vus_ = DonneNombre(); // the reading's own: it may bring fields up to date
    return fini;
}

std::vector<std::optional<compagnon::Intervalle>> LectureDuDocument::DonneSelections() const {
    return document_->DonneSelections(lues_);
}

} // namespace extension
