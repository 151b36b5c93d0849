// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <cstddef>
#include <cstdint>

namespace compagnon {

/// A range of UTF-16 code units as it stands on the wire: signed, `debut` inclusive, `fin`
/// exclusive. Nothing is promised of a value that came from outside: see `EstDans`.
struct Intervalle {
    std::int32_t debut = 0;
    std::int32_t fin = 0;

    /// Is it in order and inside a text of `taille` units?
    bool EstDans(std::size_t taille) const noexcept {
        return debut >= 0 && debut <= fin && static_cast<std::size_t>(fin) <= taille;
    }

    /// An insertion point: a place between two units.
    bool EstVide() const noexcept { return debut == fin; }

    /// The bounds as unsigned positions; only for a range that `EstDans` accepted.
    std::size_t DonneDebut() const noexcept { return static_cast<std::size_t>(debut); }
    std::size_t DonneFin() const noexcept { return static_cast<std::size_t>(fin); }
    std::size_t DonneLongueur() const noexcept { return DonneFin() - DonneDebut(); }

    friend bool operator==(Intervalle a, Intervalle b) noexcept {
        return a.debut == b.debut && a.fin == b.fin;
    }
    friend bool operator!=(Intervalle a, Intervalle b) noexcept { return !(a == b); }
};

} // namespace compagnon
