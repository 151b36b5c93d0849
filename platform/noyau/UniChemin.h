// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "UniChaine.h"

/// A file path. It keeps the text as given: nothing is cleaned, resolved or looked up. Threads
/// and exceptions as for `UniChaine`.
class VOCALYNE_NOYAU UniChemin {
  public:
    /// The empty path: it names nothing.
    UniChemin() noexcept = default;
    explicit UniChemin(UniChaine chemin) noexcept
        : chemin_(std::move(chemin)) {}

    bool EstVide() const noexcept { return chemin_.EstVide(); }

    /// The path as it was given.
    UniChaine const& DonneChemin() const noexcept { return chemin_; }

    /// What stands after the last "/", without the last extension: the name shown to a person.
    /// Empty for the empty path and for one that ends in "/".
    UniChaine DonneNomAffiche() const;

    friend bool operator==(UniChemin const& a, UniChemin const& b) noexcept {
        return a.chemin_ == b.chemin_;
    }
    friend bool operator!=(UniChemin const& a, UniChemin const& b) noexcept { return !(a == b); }

  private:
    UniChaine chemin_;
};
