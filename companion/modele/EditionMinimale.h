// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <cstddef>
#include <string_view>

namespace compagnon {

/// The smallest span in which a new text differs from an old one: replace `retire` units at `debut`
/// of the old text by `ajout` and the new text stands there.
///
/// Rule: the longest common start is set aside first, then the longest common end of what is left
/// (so of equal letters in a row the last ones count as added or removed). Each is then shortened
/// until its border parts no visible character (`CoupeCaractere`) in either text: a surrogate pair
/// or a letter with its marks changes as a whole.
struct EditionMinimale {
    std::size_t debut = 0;     ///< in both texts, UTF-16 units
    std::size_t retire = 0;    ///< units of the old text
    std::u16string_view ajout; ///< a view into the new text given to `Entre`

    /// Were the two texts the same?
    bool EstVide() const noexcept { return retire == 0 && ajout.empty(); }

    /// Linear in the texts' sizes. `nouveau` must outlive the result.
    static EditionMinimale Entre(std::u16string_view ancien, std::u16string_view nouveau) noexcept;
};

/// Units that both texts share at their start, surrogates and marks not looked at.
std::size_t LongueurDebutCommun(std::u16string_view a, std::u16string_view b) noexcept;
/// Units that both texts share at their end, likewise.
std::size_t LongueurFinCommune(std::u16string_view a, std::u16string_view b) noexcept;

} // namespace compagnon
