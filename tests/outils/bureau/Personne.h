// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "coeur/Bureau.h"

#include <string>
#include <string_view>

/// The person at the text office's keyboard. Zones by their keys; ranges are the document's own, in
/// UTF-16 code units. Throws `compagnon::ErreurDuService`, and nothing has changed then. The
/// office's thread.
class Personne {
  public:
    explicit Personne(compagnon::Bureau& bureau)
        : bureau_(bureau) {}

    void Tape(std::string const& zone, compagnon::Intervalle plage, std::u16string_view texte);
    void Selectionne(std::string const& zone, compagnon::Intervalle plage);
    /// A new paragraph behind this one; its zone's key.
    std::string InsereApres(std::string const& zone, std::u16string_view texte);
    void Supprime(std::string const& zone);
    /// Closes the document of that key without saving it.
    void Ferme(std::string const& cle);

  private:
    compagnon::Bureau& bureau_;
};
