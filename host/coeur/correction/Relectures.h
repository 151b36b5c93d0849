// SPDX-License-Identifier: MPL-2.0
#pragma once

namespace hote {

/// Decides which refusals are worth reading the document again for. A reading of a long document
/// takes seconds, and where a document is read-only every correction is refused: each reading that
/// finds nothing new doubles the number of refusals that pass before the next.
class Relectures {
  public:
    /// Is this refusal worth a reading?
    bool Demande() noexcept {
        // A document that is another one at each reading must not keep us for ever.
        if (faites_ >= kMax || ++refus_ < attente_) {
            return false;
        }
        refus_ = 0;
        ++faites_;
        return true;
    }

    /// Tells whether the reading found the document changed.
    void Apprends(bool change) noexcept { attente_ = change ? 1 : attente_ * 2; }

    /// A correction was taken.
    void ApprendsSucces() noexcept { attente_ = 1; }

  private:
    static constexpr int kMax = 1000;

    int faites_ = 0;
    int refus_ = 0;
    long long attente_ = 1; ///< refusals up to the next reading
};

} // namespace hote
