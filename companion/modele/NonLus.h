// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace compagnon {

/// Why something that a person may have put into a document is not read.
enum class RaisonNonLu : std::uint8_t {
    Choix,    ///< chosen, not typed: an entry of a list, a date, a box that is ticked
    Masque,   ///< hidden letters, and paragraphs, cells and shapes
    Supprime, ///< deleted while changes were recorded
    Saisie,   ///< typed into an input field of several lines, whose end the office does not tell
    Genere,   ///< made by the office out of other text: an index, a pivot table
    kNombre
};

/// How often each of these reasons was met. Any thread.
class NonLus {
  public:
    void Note(RaisonNonLu raison, std::uint32_t nombre = 1) noexcept {
        nombres_[static_cast<std::size_t>(raison)] += nombre;
    }
    void Ajoute(NonLus const& autres) noexcept {
        for (std::size_t i = 0; i < nombres_.size(); ++i) {
            nombres_[i] += autres.nombres_[i];
        }
    }
    /// Passages: a field, a run of hidden letters, a paragraph, a cell.
    std::uint32_t Donne(RaisonNonLu raison) const noexcept {
        return nombres_[static_cast<std::size_t>(raison)];
    }

  private:
    std::array<std::uint32_t, static_cast<std::size_t>(RaisonNonLu::kNombre)> nombres_{};
};

} // namespace compagnon
