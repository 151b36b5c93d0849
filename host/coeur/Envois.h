// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Bilan.h"
#include "Recalage.h"

#include <vector>

namespace hote {

/// The corrections sent since the document was last read. Nobody answers a correction: only the
/// document, read again, shows whether it was made.
class Envois {
  public:
    /// A correction: `rang` is its mistake's in the result, [debut, fin) its text's place in the
    /// zone as we believe it to be now. Within a zone, later ones stand behind earlier ones.
    void Ajoute(std::size_t rang, int zone, int debut, int fin) {
        envois_.push_back({rang, zone, debut, fin});
    }

    bool EstVide() const noexcept { return envois_.empty(); }

    /// Settles all of them against the document read again, and forgets them: `anciens` is what we
    /// believed, `nouveaux` what it holds.
    void Verifie(Recalage const& recalage, std::vector<QString> const& anciens,
                 std::vector<QString> const& nouveaux, Bilan& bilan);

    /// The document cannot be read again: tells so of all of them, and forgets them.
    void Abandonne(Bilan& bilan);

  private:
    struct Envoi {
        std::size_t rang;
        int zone;
        int debut;
        int fin;
    };
    std::vector<Envoi> envois_;
};

} // namespace hote
