// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <stdexcept>
#include <string>

namespace extension {

/// Why a call is answered with an error. `Nom` is the last element of the D-Bus error's name.
class ErreurDuService : public std::runtime_error {
  public:
    ErreurDuService(std::string nom, std::string const& message)
        : std::runtime_error(message)
        , nom_(std::move(nom)) {}

    std::string const& DonneNom() const noexcept { return nom_; }

  private:
    std::string nom_;
};

inline ErreurDuService DocumentInconnu() {
    return {"DocumentInconnu", "no open document of this office has that identifier"};
}
inline ErreurDuService ZoneInconnue() {
    return {"ZoneInconnue", "that zone is not, or no longer, in an open document"};
}
inline ErreurDuService Refuse(std::string const& raison) {
    return {"Refuse", raison};
}

} // namespace extension
