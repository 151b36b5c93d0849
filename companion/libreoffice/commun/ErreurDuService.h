// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <stdexcept>
#include <string>

namespace bureau {

/// Why a call is answered with an error. `Nom` is the last element of the D-Bus error's name.
class Erreur : public std::runtime_error {
  public:
    Erreur(std::string nom, std::string const& message)
        : std::runtime_error(message)
        , nom_(std::move(nom)) {}

    std::string const& Nom() const noexcept { return nom_; }

  private:
    std::string nom_;
};

inline Erreur DocumentInconnu() {
    return {"DocumentInconnu", "no open document of this office has that identifier"};
}
inline Erreur ZoneInconnue() {
    return {"ZoneInconnue", "that zone is not, or no longer, in an open document"};
}
inline Erreur Refuse(std::string const& raison) {
    return {"Refuse", raison};
}

} // namespace bureau
