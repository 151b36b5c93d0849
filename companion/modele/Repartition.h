// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace compagnon {

/// Shares a new text out over the pieces that the old one stands in, so that letters which stay the
/// same stay in their piece (and keep its format): the longest common subsequence, spaces first,
/// decides, and past a size where that would be felt, the pieces' lengths.
///
/// `tailles`: the pieces' lengths, which add up to the old text's. One view a piece, in order,
/// together the whole new text; none parts what a reader sees as one character.
std::vector<std::u16string_view> RepartisTexte(std::u16string_view ancien,
                                               std::vector<std::size_t> const& tailles,
                                               std::u16string_view nouveau);

} // namespace compagnon
